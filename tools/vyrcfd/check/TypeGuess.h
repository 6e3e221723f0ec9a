#ifndef TypeGuess_H
#define TypeGuess_H

#include <string>
#include <unordered_map>
#include <vector>

#include "ScratchObjects.h"
#include "SourceItem.h"
#include "Suggestions.h"

namespace Tool
{
/// Finds the types that a configuration may be for, by the attributes that its items name.
class TypeGuess
{
public:
    TypeGuess(ScratchObjects& ioObjects, Suggestions& ioSuggestions);

    /// The types with most of the names, or of those that were meant by them; of those that have as many, not such as
    /// derive from another one. Empty where they are not even two thirds, or too many types are as good.
    std::vector<std::string> TypesFor(const SourceConfiguration& iConfiguration);

    /// Whether any type has an attribute of the name.
    bool HasName(const std::string& iName) { return !TypesWith(iName).empty(); }

private:
    using Types = std::vector<std::size_t>;

    const Types& TypesWith(const std::string& iName);
    /// The same; of a name that none has, those with the one that it is a slip of.
    const Types& TypesMeant(const std::string& iName);
    const Types& Choices();
    Types WithoutDerived(const Types& iTypes);

    const std::vector<std::string>& AllNames();

    ScratchObjects& m_objects;
    Suggestions& m_suggestions;
    std::vector<std::string> m_types;
    /// Of all attributes; made for the first name that none has.
    std::vector<std::string> m_names;
    std::unordered_map<std::string, Types> m_typesWith;
    /// What was meant by names that none has; empty where that is not known.
    std::unordered_map<std::string, std::string> m_meant;
};
} // namespace Tool

#endif
