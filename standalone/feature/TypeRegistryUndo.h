#ifndef TypeRegistryUndo_H
#define TypeRegistryUndo_H

#include <unordered_map>

#include "FeatureType.h"
#include "TypeRegistry.h"

namespace VYRStandalone
{
/**
 * Takes a declaration back that does not come to its end: the registry is then as it was before, and the same catalog
 * can be declared. One at a time; nobody else may use types meanwhile.
 */
class TypeRegistry::Undo
{
public:
    explicit Undo(TypeRegistry& ioRegistry) : m_registry(ioRegistry) {}
    ~Undo();
    Undo(const Undo&) = delete;
    Undo& operator=(const Undo&) = delete;

    /// A new type, which stands in the registry.
    void Make(const std::string& iName, FeatureType* iBase);
    /// Before the declaration changes a type that stood already.
    void Remember(FeatureType& ioType);
    /// Before something is made of the type, or derived from it.
    void RememberUse(FeatureType& ioType);
    /// Of a type that is remembered: as it was then.
    bool WasFrozen(FeatureType& iType) const { return m_formers.at(&iType).wasFrozen; }
    /// The name of the catalog, last.
    void EnterCatalog(const std::string& iName);
    /// The declaration stands.
    void Keep() noexcept;

private:
    struct Former
    {
        bool isNew;
        bool wasFrozen;
        FeatureType::Content content;
    };

    void TakeBack() noexcept;

    TypeRegistry& m_registry;
    bool m_isKept = false;
    std::unordered_map<FeatureType*, Former> m_formers;
};
} // namespace VYRStandalone

#endif
