#ifndef TypeGuess_H
#define TypeGuess_H

#include <string>
#include <unordered_map>
#include <vector>

#include "ScratchObjects.h"
#include "SourceItem.h"

namespace Tool
{
/// Finds the types that a configuration may be for, by the attributes that its items name.
class TypeGuess
{
public:
    explicit TypeGuess(ScratchObjects& ioObjects);

    /// The types with most of the names; of those that have as many, not such as derive from another one. Empty where
    /// they are not even two thirds, or too many types are as good.
    std::vector<std::string> TypesFor(const SourceConfiguration& iConfiguration);

    /// Whether any type has an attribute of the name.
    bool HasName(const std::string& iName) { return !TypesWith(iName).empty(); }

private:
    using Types = std::vector<std::size_t>;

    const Types& TypesWith(const std::string& iName);
    const Types& Choices();
    Types WithoutDerived(const Types& iTypes);

    ScratchObjects& m_objects;
    std::vector<std::string> m_types;
    std::unordered_map<std::string, Types> m_typesWith;
};
} // namespace Tool

#endif
