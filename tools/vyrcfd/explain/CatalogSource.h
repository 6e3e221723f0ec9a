#ifndef CatalogSource_H
#define CatalogSource_H

/**
 * @file
 * Catalogs, with the places of what they declare.
 */

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "Installation.h"
#include "SourceFile.h"

namespace Tool
{
/// Where a catalog says something. Lives as long as the CatalogSource.
struct CatalogPlace
{
    std::string_view catalog;
    /// The type that it says it of.
    std::string_view type;
    const SourceFile* file = nullptr;
    SourcePosition position;
};

class CatalogSource
{
public:
    /// A declaration of a type; there may be several of one.
    struct Declaration
    {
        std::string_view type;
        const SourceFile* file;
        const SourceValue* value;
    };

    /// Reads the files that the host has read for the model: those of the options, those that the model names, and
    /// those that they use. @throws VYRStandalone::DocumentError
    CatalogSource(const Installation& iInstallation, const std::string& iModelFile);

    /// Reads files, and those that they use. @throws VYRStandalone::DocumentError
    CatalogSource(const Installation& iInstallation, const std::vector<std::string>& iFiles);

    CatalogSource(const CatalogSource&) = delete;
    CatalogSource& operator=(const CatalogSource&) = delete;

    /// In the order in which they are read.
    const std::vector<Declaration>& Declarations() const noexcept { return m_declarations; }

    /// The places where catalogs declare an attribute of a type; several for one that is declared again.
    std::vector<CatalogPlace> DeclarationsOf(std::string_view iType, std::string_view iAttribute) const;

    /**
     * The places that give a value to the start-up of a type, or to a part of it, in the order in which the value of a
     * later place stands in place of the earlier one's: of the type that is derived from before the type itself.
     * @param iPath names of attributes from the start-up on, the value's own last
     */
    std::vector<CatalogPlace> ValuesOf(std::string_view iType, const std::vector<std::string>& iPath) const;

private:
    void Add(const std::string& iFile);
    void AddNamed(const SourceFile& iBy, std::string_view iKey);
    std::vector<Declaration> LineOf(std::string_view iType) const;
    static CatalogPlace PlaceOf(const Declaration& iDeclaration, const SourceValue& iValue);

    std::vector<std::string> m_folders;
    std::deque<SourceFile> m_files;
    std::vector<Declaration> m_declarations;
};
} // namespace Tool

#endif
