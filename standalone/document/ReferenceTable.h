#ifndef ReferenceTable_H
#define ReferenceTable_H

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "DocumentNode.h"

namespace VYRStandalone
{
class Container;
class FeatureKey;
class FeatureObject;

/// What the references of a document mean. They are collected while it is read, since a reference may name an object
/// that comes later, and filled in when all objects are there.
class ReferenceTable
{
public:
    /// An object's "id". @throws DocumentError when another object has it
    void AddId(const DocumentNode& iId, FeatureObject& iObject);

    /// An attribute, or an entry of a list counted from 0, that is to refer to what a "ref" says.
    void AddReference(const DocumentNode& iReference, FeatureObject& iObject, const FeatureKey& iKey,
                      std::size_t iEntry = 0);

    /// Fills in all references. @throws DocumentError for one that fits no object or several
    void Resolve(const std::string& iFile, const Container& iContainer);

private:
    struct Reference
    {
        FeatureObject* object;
        const FeatureKey* key;
        std::size_t entry;
        /// The name; empty for a reference by id.
        std::string name;
        bool isById;
        std::int64_t id;
        std::string path;
    };
    struct Identified
    {
        FeatureObject* object;
        std::string path;
    };

    FeatureObject& Target(const std::string& iFile, const Container& iContainer, const Reference& iReference);
    FeatureObject& TargetByName(const std::string& iFile, const Container& iContainer, const Reference& iReference);
    void FillNames(const Container& iContainer);
    /// References of one attribute.
    void Store(const std::string& iFile, const Container& iContainer, std::size_t iFirst, std::size_t iEnd);

    std::unordered_map<std::int64_t, Identified> m_ids;
    std::vector<Reference> m_references;
    /// By name and by identifier, each object once; filled when the first reference by name is met.
    std::unordered_map<std::string, std::vector<FeatureObject*>> m_names;
};
} // namespace VYRStandalone

#endif
