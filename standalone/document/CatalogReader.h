#ifndef CatalogReader_H
#define CatalogReader_H

#include <string>
#include <string_view>
#include <vector>

#include "TypeDeclaration.h"
#include "VYRStandaloneCatalog.h"

namespace VYRStandalone
{
/// A catalog that has been read and not yet declared.
class CatalogDocument
{
public:
    std::string file;
    /// Names of catalogs, in their order.
    std::vector<std::string> uses;
    CatalogDeclaration declaration;
    /// By type and value of the declaration: where the value stands in the document.
    std::vector<std::vector<std::string>> valuePaths;
    /// For the tool, which starts from these when it checks configurations.
    std::vector<MeantConfiguration> meantConfigurations;

    /// @throws DocumentError when the catalog does not fit what is declared already; then nothing of it is
    void Declare() const;

private:
    /// That bases and components are of types that exist; the message says which may have been meant.
    void CheckTypeNames() const;
};

/// Reads the shape of a catalog; whether its types exist and its values fit is found when it is declared.
/// @throws DocumentError
CatalogDocument ReadCatalog(std::string_view iJson, const std::string& iFile);
} // namespace VYRStandalone

#endif
