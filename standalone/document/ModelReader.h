#ifndef ModelReader_H
#define ModelReader_H

#include <string>
#include <string_view>
#include <vector>

#include "DocumentNode.h"
#include "ORXISpecObject.h"
#include "ReferenceTable.h"

namespace VYRStandalone
{
class Container;
class FeatureKey;
class FeatureObject;
class FeatureType;

/// Reads the document of a model into an empty container, in silence. When it throws, what is in the container is to
/// be thrown away.
class ModelReader
{
public:
    /// @param iFile stands for the document in errors
    ModelReader(const std::string& iFile, Container& ioContainer) : m_file(iFile), m_container(ioContainer) {}

    /**
     * @param iBeside folder in which catalogs are sought first; empty for none
     * @return names of the catalogs that the document gives
     * @throws DocumentError
     */
    std::vector<std::string> Read(std::string_view iJson, const std::string& iBeside,
                                  const std::vector<std::string>& iFolders);

private:
    std::vector<std::string> ReadCatalogs(const DocumentNode& iRoot, const std::string& iBeside,
                                          const std::vector<std::string>& iFolders);
    void ReadTopLevel(const DocumentNode& iObject);
    /// What every object may have: its further names, its id, its values and added attributes.
    void ReadBody(const DocumentNode& iNode, FeatureObject& ioObject, std::size_t iDepth);
    static const FeatureKey& AddAttribute(const DocumentNode& iMember, FeatureObject& ioObject);
    static void AddDeclared(const DocumentNode& iMember, FeatureObject& ioObject, const FeatureKey& iKey);
    void ReadAdded(const DocumentNode& iNode, FeatureObject& ioObject, std::size_t iDepth);
    void ReadValues(const DocumentNode& iNode, FeatureObject& ioObject, std::size_t iDepth);
    void ReadValue(const DocumentNode& iNode, FeatureObject& ioObject, const FeatureKey& iKey, std::size_t iDepth);
    void ReadObjectValue(const DocumentNode& iNode, FeatureObject& ioObject, const FeatureKey& iKey,
                         std::size_t iDepth);
    void ReadObjectList(const DocumentNode& iNode, FeatureObject& ioObject, const FeatureKey& iKey, std::size_t iDepth);

    /// @param iBefore what came with the owner, null for nothing
    ORXISpecObject_var ReadComponent(const DocumentNode& iNode, const FeatureKey& iKey, FeatureObject* iBefore,
                                     std::size_t iDepth);
    ORXISpecObject_var ReadColumn(const DocumentNode& iNode, std::size_t iDepth);

    const std::string& m_file;
    Container& m_container;
    ReferenceTable m_references;
};
} // namespace VYRStandalone

#endif
