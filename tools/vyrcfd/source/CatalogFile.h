#ifndef CatalogFile_H
#define CatalogFile_H

/**
 * @file
 * How the file is called in which a catalog is sought by its name.
 */

#include <string>
#include <string_view>

namespace Tool
{
constexpr std::string_view CatalogSuffix = ".catalog.json";

inline std::string CatalogFileOf(const std::string& iCatalog)
{
    return iCatalog + std::string(CatalogSuffix);
}

/// The catalog that is sought in a file; empty for a file in which none is. @param iFile its bare name
inline std::string CatalogSoughtIn(std::string_view iFile)
{
    const bool isSought = iFile.size() > CatalogSuffix.size() && iFile.ends_with(CatalogSuffix);
    return isSought ? std::string(iFile.substr(0, iFile.size() - CatalogSuffix.size())) : std::string();
}
} // namespace Tool

#endif
