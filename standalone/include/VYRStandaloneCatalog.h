#ifndef VYRStandaloneCatalog_H
#define VYRStandaloneCatalog_H

/**
 * @file
 * Feature types: declaring and loading catalogs, and asking what was declared.
 *
 * Types live until the process ends. Declaring is additive: a catalog that is declared again unchanged is accepted; a
 * type may gain attributes as long as nothing was made of it or derived from it; an attribute that stands already with
 * another kind is refused, and so is a type that contains itself by its components. A refused catalog declares
 * nothing. Not to be called while another thread uses types.
 */

#include <string>
#include <string_view>
#include <vector>

#include "ORXISpecObject.h"
#include "VYRStandaloneErrors.h"

namespace VYRStandalone
{
/// Declares a catalog from its JSON text. @param iLabel stands for the file in errors. @throws DocumentError
VYRStandaloneExport void DeclareCatalog(std::string_view iJson, const std::string& iLabel);

/**
 * Declares a catalog from a file, after the catalogs that it uses: those are sought as "NAME.catalog.json" beside it,
 * then in the folders, then among those that come with the host ("VYRCfdBase").
 * @throws DocumentError
 */
VYRStandaloneExport void LoadCatalog(const std::string& iFile, const std::vector<std::string>& iFolders = {});

/// Names of all declared types, in the order of their declaration.
VYRStandaloneExport std::vector<std::string> TypeNames();

/// Names of the types that their catalog marks with "manager": true, in the order of their declaration. The host only
/// keeps the mark; whoever offers managers registers one for these types.
VYRStandaloneExport std::vector<std::string> ManagedTypes();

/// A configuration that a catalog lists as meant for objects of a type.
struct MeantConfiguration
{
    /// Name of the feature type.
    std::string type;
    /// Name of the configuration.
    std::string configuration;
    /// Where it stands: the catalog's file or label, and the path inside, as "/types/0/configurations/1".
    /// @{
    std::string file;
    std::string path;
    /// @}
};

/// What all catalogs list, in the order of their declaration. The host only keeps it; no configuration need be there.
VYRStandaloneExport std::vector<MeantConfiguration> MeantConfigurations();

/// One attribute that an object carries.
struct AttributeInfo
{
    /// Name of the attribute.
    std::string name;
    /// Codes of ORXTypeCode; `listType` is 0 for everything but a list.
    /// @{
    int type = 0;
    int listType = 0;
    /// @}
    /// Texts of an enumeration, also of a list of enumerations.
    std::vector<std::string> values;
    /// SI unit of reals that measure something, also of a list of reals.
    std::string unit;
    /// Carried only by objects that it has been added to.
    bool optional = false;
    /// Type that declares it; empty for an attribute that was added to the object alone.
    std::string declaredBy;
    /// Added to the object alone; no type declares it.
    bool added = false;
};

/// The attributes of an object: the declared ones from the root type down, in the order of their declaration, then the
/// added ones in the order in which they were added. A copy; linear in them. Empty for null.
VYRStandaloneExport std::vector<AttributeInfo> Attributes(const ORXISpecObject_var& iObject);
} // namespace VYRStandalone

#endif
