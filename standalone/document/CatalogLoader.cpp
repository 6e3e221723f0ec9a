#include "CatalogLoader.h"

#include <algorithm>
#include <filesystem>

#include "DocumentNode.h"
#include "TypeRegistry.h"
#include "VYRStandaloneErrors.h"
#include "WholeFile.h"
#include "Wording.h"

namespace VYRStandalone
{
std::string FolderOf(const std::string& iFile)
{
    const std::string folder = std::filesystem::path(iFile).parent_path().string();
    return folder.empty() ? "." : folder;
}

void CatalogLoader::Add(const std::string& iFile)
{
    ReadAfterUses(iFile, nullptr);
}

void CatalogLoader::AddNamed(const std::string& iName, const std::string& iBeside, const DocumentNode& iPlace)
{
    AddWanted({iName, iBeside, iPlace.File(), iPlace.Path()});
}

void CatalogLoader::AddWanted(const Wanted& iWanted)
{
    const auto hasName = [&](const CatalogDocument& iCatalog) { return iCatalog.declaration.name == iWanted.name; };
    if (TypeRegistry::Instance().HasCatalog(iWanted.name) || std::any_of(m_catalogs.begin(), m_catalogs.end(), hasName))
        return;
    const auto before = std::find(m_trail.begin(), m_trail.end(), iWanted.name);
    if (before != m_trail.end())
    {
        std::string circle;
        std::for_each(before, m_trail.end(), [&](const std::string& iName) { circle += Quoted(iName) + " uses "; });
        throw DocumentError(iWanted.file, iWanted.path,
                            "catalogs must not use each other: " + circle + Quoted(iWanted.name));
    }
    ReadAfterUses(FindFile(iWanted), &iWanted);
}

void CatalogLoader::ReadAfterUses(const std::string& iFile, const Wanted* iWanted)
{
    std::string text;
    if (const std::string error = ReadWholeFile(iFile, text); !error.empty())
        throw DocumentError(iFile, "", error);
    CatalogDocument catalog = ReadCatalog(text, iFile);
    const std::string& name = catalog.declaration.name;
    if (iWanted != nullptr && name != iWanted->name)
        throw DocumentError(iFile, "/catalog",
                            "must be " + Quoted(iWanted->name) + " as the file's name says, not " + Quoted(name));

    m_trail.push_back(name);
    for (std::size_t i = 0; i < catalog.uses.size(); ++i)
        AddWanted({catalog.uses[i], FolderOf(iFile), iFile, "/uses/" + std::to_string(i)});
    m_trail.pop_back();
    m_catalogs.push_back(std::move(catalog));
}

std::string CatalogLoader::FindFile(const Wanted& iWanted) const
{
    std::vector<std::string> folders = m_folders;
    if (!iWanted.beside.empty())
        folders.insert(folders.begin(), iWanted.beside);
    const std::string name = iWanted.name + ".catalog.json";
    // A name that leads into other folders is none, nor one that the system would cut.
    if (iWanted.name.find_first_of(std::string_view("/\0", 2)) == std::string::npos)
    {
        for (const std::string& folder : folders)
        {
            std::error_code ignored;
            const std::filesystem::path file = std::filesystem::path(folder) / name;
            // Links are followed; but what is only sought, and not named by the user, must not be a pipe or a device.
            if (std::filesystem::is_regular_file(file, ignored))
                return file.lexically_normal().string();
        }
    }
    const std::string places =
        folders.empty() ? "" : "no file " + Quoted(name) + " in " + QuotedList(folders) + ", and ";
    throw DocumentError(iWanted.file, iWanted.path,
                        "unknown catalog " + Quoted(iWanted.name) + ": " + places + "none of that name is declared");
}

void CatalogLoader::DeclareAll() const
{
    for (const CatalogDocument& catalog : m_catalogs)
        catalog.Declare();
}
} // namespace VYRStandalone
