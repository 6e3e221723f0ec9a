#ifndef TypeRegistry_H
#define TypeRegistry_H

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "TypeDeclaration.h"

namespace VYRStandalone
{
class FeatureType;

/**
 * All feature types of the process. Made on first use, with the catalog "VYRCfdBase" declared, and never destroyed.
 * Reading is free of locks; declaring is for times when no other thread uses types.
 */
class TypeRegistry
{
public:
    static TypeRegistry& Instance();

    /// Borrowed, valid until the process ends; null for an unknown type.
    FeatureType* Find(std::string_view iName) const;

    /// In the order of their declaration.
    const std::vector<FeatureType*>& Types() const noexcept { return m_types; }

    /// True when a catalog of the name has been declared.
    bool HasCatalog(const std::string& iName) const { return m_catalogs.count(iName) != 0; }

    /// All or nothing, also when memory runs out. @throws DeclarationError, and then nothing has been declared
    void Declare(const CatalogDeclaration& iCatalog);

    /// The type of table columns, which is in no catalog.
    FeatureType& ColumnType() const noexcept { return *m_columnType; }

private:
    class Undo;

    TypeRegistry();

    std::vector<FeatureType*> m_types;
    std::unordered_map<std::string_view, FeatureType*> m_byName;
    std::unordered_set<std::string> m_catalogs;
    FeatureType* m_columnType;
};
} // namespace VYRStandalone

#endif
