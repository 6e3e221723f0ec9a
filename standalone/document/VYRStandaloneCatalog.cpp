#include "VYRStandaloneCatalog.h"

#include "CatalogLoader.h"
#include "TypeRegistry.h"
#include "Wording.h"

namespace VYRStandalone
{
void DeclareCatalog(std::string_view iJson, const std::string& iLabel)
{
    const CatalogDocument catalog = ReadCatalog(iJson, iLabel);
    for (std::size_t i = 0; i < catalog.uses.size(); ++i)
        if (!TypeRegistry::Instance().HasCatalog(catalog.uses[i]))
            throw DocumentError(iLabel, "/uses/" + std::to_string(i),
                                "unknown catalog " + Quoted(catalog.uses[i]) + ": none of that name is declared");
    catalog.Declare();
}

void LoadCatalog(const std::string& iFile, const std::vector<std::string>& iFolders)
{
    CatalogLoader loader(iFolders);
    loader.Add(iFile);
    loader.DeclareAll();
}
} // namespace VYRStandalone
