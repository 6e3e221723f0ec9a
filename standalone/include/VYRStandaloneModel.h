#ifndef VYRStandaloneModel_H
#define VYRStandaloneModel_H

/**
 * @file
 * Models: the objects of one container, in memory and on disk.
 */

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ORXIContainer.h"
#include "ORXISpecObject.h"
#include "VYRStandaloneErrors.h"

namespace VYRStandalone
{
/**
 * Owns one container. Destroying or closing it lets its objects go; an object that is still held lives on outside
 * every model, without its references to others. One model is used by one thread at a time.
 */
class VYRStandaloneExport Model
{
public:
    Model();
    ~Model();
    Model(Model&&) noexcept;
    Model& operator=(Model&&) noexcept;

    /**
     * Reads a model file. Catalogs that it names are sought as "NAME.catalog.json" beside it, in the folders, and among
     * those that come with the host; what is declared already is not read again. Nobody is told of what is loaded.
     * Linear in the size of the file.
     * @throws DocumentError
     */
    static Model Load(const std::string& iFile, const std::vector<std::string>& iCatalogFolders = {});

    /// The same from text, which is not kept. @param iLabel stands for the file in errors @throws DocumentError
    static Model Parse(std::string_view iJson, const std::string& iLabel,
                       const std::vector<std::string>& iCatalogFolders = {});

    /// The model as its file holds it. Linear in its size.
    std::string Text() const;

    /// Replaces the file in one step: whatever stops it, the old file or the new one is whole. @throws DocumentError
    void Save(const std::string& iFile) const;

    /// The container of the objects, which the model owns.
    ORXIContainer_var Container() const;

    /// Makes a top-level object with its components, which the model owns. @throws std::invalid_argument for an unknown
    /// type
    ORXISpecObject_var Create(const ORXUnicodeString& iType, const ORXUnicodeString& iName);

    /// A top-level object by the meanings that a name has in a list: display name, internal name, type, 1-based
    /// position. Null when nothing answers. Linear in the objects.
    ORXISpecObject_var Find(const ORXUnicodeString& iName) const;

    /// All top-level objects, in their order; a copy, which later changes leave as it is.
    std::vector<ORXISpecObject_var> Objects() const;

    /// Lets every extension instance go, as if the model had been closed and opened again: what lives in memory only,
    /// such as custom defaults, is lost. No interface of an extension may be held meanwhile.
    void DropExtensions();

    /// Lets the objects go; the model is empty afterwards, and can be used on.
    void Close();

private:
    class Content;
    std::unique_ptr<Content> m_content;
};

/// Name of an object as the user sees it, and its identifier. The empty text takes it away again; null does nothing.
/// @{
VYRStandaloneExport void SetAlias(const ORXISpecObject_var& iObject, const ORXUnicodeString& iAlias);
VYRStandaloneExport void SetIdentifier(const ORXISpecObject_var& iObject, const ORXUnicodeString& iIdentifier);
/// @}

/// Where an object stands: its name, or for a component its owner's path, "/" and the attribute that holds it. A
/// prototype's path is its type in brackets. Empty for null.
VYRStandaloneExport std::string PathOf(ORXISpecObject* iObject);

/// New empty table column of reals, a component of its own kind, to be set under a component attribute; until then the
/// caller's.
VYRStandaloneExport ORXISpecObject_var MakeTableColumn();
} // namespace VYRStandalone

#endif
