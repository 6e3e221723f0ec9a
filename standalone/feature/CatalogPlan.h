#ifndef CatalogPlan_H
#define CatalogPlan_H

#include <string>
#include <unordered_map>
#include <vector>

#include "KnowledgeType.h"
#include "TypeDeclaration.h"

namespace VYRStandalone
{
class FeatureKey;
class FeatureType;
class TypeRegistry;

/**
 * How a catalog would stand among the types that are declared already. Made before anything is declared, so that a
 * catalog is declared whole or not at all.
 */
class CatalogPlan
{
public:
    /// @throws DeclarationError when the catalog has to be refused. Both arguments must outlive the plan.
    CatalogPlan(const TypeRegistry& iRegistry, const CatalogDeclaration& iCatalog);

    /// Indices of the catalog's types, bases before what derives from them.
    const std::vector<std::size_t>& BasesFirst() const noexcept { return m_basesFirst; }
    /// Indices of the catalog's types, bases and component types before those that use them.
    const std::vector<std::size_t>& PartsFirst() const noexcept { return m_partsFirst; }
    /// How many objects come into being with one of a type of the catalog.
    std::size_t ObjectCount(const std::string& iName) const { return m_objectCounts.at(iName); }

private:
    /// An attribute of a type as it will stand.
    struct Attribute
    {
        int type;
        int listType;
        std::vector<std::string> texts;
        /// Of values other than enumerations, whose own type does not exist yet.
        const KnowledgeType* knowledge;
        bool isOptional;
        std::string componentType;

        bool operator==(const Attribute& iOther) const;
    };

    /// A type as it will stand.
    struct Type
    {
        /// Null for a type that is new.
        const FeatureType* declared = nullptr;
        std::string base;
        /// Of the catalog only.
        std::vector<std::pair<std::string, Attribute>> attributes;
        /// Places in it, by name.
        std::unordered_map<std::string, std::size_t> places;
    };

    void CollectTypes();
    void CheckBase(std::size_t iType) const;
    void OrderByBases();
    void CheckManager(std::size_t iType) const;
    void AddAttributes(std::size_t iType);
    static const KnowledgeType* KnowledgeOf(const AttributeDeclaration& iAttribute, std::string& oWhy);
    void CheckAttribute(std::size_t iType, std::size_t iAttribute) const;
    void OrderByParts();
    void CountObjects(std::size_t iType);
    void CheckValue(std::size_t iType, std::size_t iValue) const;
    /// What a start-up in use holds must not change any more.
    void CheckStartupInUse(std::size_t iType, std::size_t iValue) const;

    /// Null for an unknown type.
    const Type* Find(const std::string& iName) const;
    /// Also inherited ones; false when there is none.
    bool FindAttribute(const std::string& iType, const std::string& iName, Attribute& oAttribute) const;
    /// Component types of all attributes, also of inherited ones.
    std::vector<std::string> PartsOf(const std::string& iType) const;
    static Attribute Describe(const FeatureKey& iKey);

    const TypeRegistry& m_registry;
    const CatalogDeclaration& m_catalog;
    /// Those of the catalog, and those that stand already as far as they were asked for.
    mutable std::unordered_map<std::string, Type> m_types;
    std::vector<std::size_t> m_basesFirst;
    std::vector<std::size_t> m_partsFirst;
    std::unordered_map<std::string, std::size_t> m_objectCounts;
};
} // namespace VYRStandalone

#endif
