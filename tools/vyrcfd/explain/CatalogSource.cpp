#include "CatalogSource.h"

#include <algorithm>
#include <filesystem>

#include "CatalogFile.h"

namespace Tool
{
namespace
{
namespace fs = std::filesystem;

/// The element of an array of named objects; null for none.
const SourceValue* ElementNamed(const SourceValue& iOwner, std::string_view iKey, std::string_view iName)
{
    for (const SourceValue* element : iOwner.ElementsOf(iKey))
        if (element->TextOf("name") == iName)
            return element;
    return nullptr;
}

/// What stands below a start-up along a path; null for nothing.
const SourceValue* Follow(const SourceValue& iStart, const std::vector<std::string>& iPath)
{
    const SourceValue* value = &iStart;
    for (const std::string& name : iPath)
    {
        const SourceMember* member = value->Find(name);
        if (member == nullptr)
            return nullptr;
        value = member->value;
    }
    return value;
}
} // namespace

CatalogSource::CatalogSource(const Installation& iInstallation, const std::string& iModelFile)
    : m_folders(iInstallation.CatalogFolders())
{
    for (const std::string& catalog : iInstallation.Catalogs())
        Add(catalog);
    AddNamed(SourceFile(iModelFile), "catalogs");
}

CatalogSource::CatalogSource(const Installation& iInstallation, const std::vector<std::string>& iFiles)
    : m_folders(iInstallation.CatalogFolders())
{
    for (const std::string& file : iFiles)
        Add(file);
}

void CatalogSource::Add(const std::string& iFile)
{
    const auto isRead = [&](const SourceFile& iOne) { return iOne.Path() == iFile; };
    if (std::any_of(m_files.begin(), m_files.end(), isRead))
        return;
    const SourceFile& file = m_files.emplace_back(iFile);
    for (const SourceValue* type : file.Root().ElementsOf("types"))
        m_declarations.push_back({type->TextOf("name"), &file, type});
    AddNamed(file, "uses");
}

/// One that is found nowhere comes with the host.
void CatalogSource::AddNamed(const SourceFile& iBy, std::string_view iKey)
{
    for (const SourceValue* name : iBy.Root().ElementsOf(iKey))
    {
        std::vector<fs::path> folders{fs::path(iBy.Path()).parent_path()};
        folders.insert(folders.end(), m_folders.begin(), m_folders.end());
        for (const fs::path& folder : folders)
        {
            const fs::path file = folder / CatalogFileOf(name->text);
            std::error_code ignored;
            if (!fs::is_regular_file(file, ignored))
                continue;
            Add(file.lexically_normal().string());
            break;
        }
    }
}

CatalogPlace CatalogSource::PlaceOf(const Declaration& iDeclaration, const SourceValue& iValue)
{
    return {iDeclaration.file->Root().TextOf("catalog"), iDeclaration.type, iDeclaration.file, iValue.position};
}

std::vector<CatalogPlace> CatalogSource::DeclarationsOf(std::string_view iType, std::string_view iAttribute) const
{
    std::vector<CatalogPlace> places;
    for (const Declaration& declaration : m_declarations)
        if (declaration.type == iType)
            if (const SourceValue* attribute = ElementNamed(*declaration.value, "attributes", iAttribute))
                places.push_back(PlaceOf(declaration, *attribute));
    return places;
}

/// The declarations of a type and of those that it derives from, the first of all in front.
std::vector<CatalogSource::Declaration> CatalogSource::LineOf(std::string_view iType) const
{
    std::vector<std::vector<Declaration>> generations;
    std::string_view type = iType;
    while (!type.empty())
    {
        std::vector<Declaration>& generation = generations.emplace_back();
        std::string_view base;
        for (const Declaration& declaration : m_declarations)
        {
            if (declaration.type != type)
                continue;
            generation.push_back(declaration);
            if (base.empty())
                base = declaration.value->TextOf("base");
        }
        type = base;
    }
    std::vector<Declaration> line;
    for (auto generation = generations.rbegin(); generation != generations.rend(); ++generation)
        line.insert(line.end(), generation->begin(), generation->end());
    return line;
}

std::vector<CatalogPlace> CatalogSource::ValuesOf(std::string_view iType, const std::vector<std::string>& iPath) const
{
    std::vector<CatalogPlace> places;
    for (const Declaration& declaration : LineOf(iType))
    {
        const SourceValue* attribute =
            iPath.size() == 1 ? ElementNamed(*declaration.value, "attributes", iPath.front()) : nullptr;
        const SourceMember* byDefault = attribute != nullptr ? attribute->Find("default") : nullptr;
        if (byDefault != nullptr)
            places.push_back(PlaceOf(declaration, *byDefault->value));
        const SourceMember* startup = declaration.value->Find("startup");
        const SourceValue* value = startup != nullptr ? Follow(*startup->value, iPath) : nullptr;
        if (value != nullptr)
            places.push_back(PlaceOf(declaration, *value));
    }
    return places;
}
} // namespace Tool
