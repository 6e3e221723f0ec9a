#ifndef CatalogLoader_H
#define CatalogLoader_H

#include <string>
#include <vector>

#include "CatalogReader.h"

namespace VYRStandalone
{
class DocumentNode;

/// Finds catalogs by their names, reads them with what they use, and declares them in the order of use. Everything is
/// read before anything is declared.
class CatalogLoader
{
public:
    /// @param iFolders where catalogs are sought that do not stand beside the file that names them
    explicit CatalogLoader(std::vector<std::string> iFolders) : m_folders(std::move(iFolders)) {}

    /// Reads a file, and the catalogs that it uses first. @throws DocumentError
    void Add(const std::string& iFile);

    /// The same for a catalog that a document names at a place. One that is declared already is left alone.
    /// @param iBeside folder of the document; empty when it comes from no file
    void AddNamed(const std::string& iName, const std::string& iBeside, const DocumentNode& iPlace);

    /// Declares what was added. @throws DocumentError
    void DeclareAll() const;

private:
    /// A catalog by its name, as a document at a place wants it.
    struct Wanted
    {
        std::string name;
        std::string beside;
        std::string file;
        std::string path;
    };

    void AddWanted(const Wanted& iWanted);
    void ReadAfterUses(const std::string& iFile, const Wanted* iWanted);
    std::string FindFile(const Wanted& iWanted) const;

    std::vector<std::string> m_folders;
    /// In the order in which they can be declared.
    std::vector<CatalogDocument> m_catalogs;
    /// Names of catalogs that are being read, each used by the one before it.
    std::vector<std::string> m_trail;
};

/// Folder of a file, as catalogs beside it are sought.
std::string FolderOf(const std::string& iFile);
} // namespace VYRStandalone

#endif
