#include "DocumentFault.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <optional>

#include "CatalogFile.h"
#include "ConfigurationSource.h"
#include "DocumentMessage.h"
#include "MeantUnit.h"
#include "SourceFile.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneModel.h"
#include "Wording.h"

namespace Tool
{
namespace
{
namespace fs = std::filesystem;

constexpr std::string_view UnknownKey = "unknown key";

bool BeginsWith(std::string_view iText, std::string_view iBeginning)
{
    return iText.substr(0, iBeginning.size()) == iBeginning;
}

/// Names of the catalogs in folders.
std::vector<std::string> CatalogNames(const std::vector<std::string>& iFolders)
{
    std::vector<std::string> names{"VYRCfdBase"};
    for (const std::string& folder : iFolders)
    {
        std::error_code ignored;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored))
            if (std::string name = CatalogSoughtIn(entry.path().filename().string());
                !name.empty() && entry.is_regular_file(ignored))
                names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Names of the attributes of a type that the file or another catalog declares.
std::vector<std::string> AttributesOf(std::string iType, const SourceValue& iRoot)
{
    std::vector<std::string> names;
    const std::vector<const SourceValue*>& types = iRoot.ElementsOf("types");
    // A type that extends itself in the end is another mistake.
    for (std::size_t generation = 0; generation <= types.size(); ++generation)
    {
        const auto type = std::find_if(types.begin(), types.end(),
                                       [&](const SourceValue* iOne) { return iOne->TextOf("name") == iType; });
        if (type == types.end())
            break;
        for (const SourceValue* attribute : (*type)->ElementsOf("attributes"))
            names.emplace_back(attribute->TextOf("name"));
        iType = (*type)->TextOf("base");
    }
    const std::vector<std::string> declared = VYRStandalone::TypeNames();
    if (std::find(declared.begin(), declared.end(), iType) == declared.end())
        return names;
    VYRStandalone::Model model;
    const ORXISpecObject_var spObject = model.Create(ORXUnicodeString(iType.data(), iType.size()), "Scratch");
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(spObject))
        names.push_back(info.name);
    return names;
}

/// What is between the first quotation marks.
std::string FirstQuoted(std::string_view iMessage)
{
    const std::size_t begin = iMessage.find('"');
    const std::size_t end = begin == std::string_view::npos ? begin : iMessage.find('"', begin + 1);
    return end == std::string_view::npos ? std::string() : std::string(iMessage.substr(begin + 1, end - begin - 1));
}

DocumentFault OfUnit(const MeantUnit& iMeant)
{
    return {{}, true, iMeant.text, {}, iMeant.Remark()};
}

DocumentFault OfCatalog(const std::string& iName, const std::vector<std::string>& iFolders)
{
    for (const std::string& folder : iFolders)
        if (const std::string path = (fs::path(folder) / CatalogFileOf(iName)).string(); !NoFileOf(path).empty())
            return {{}, true, {}, {}, "; " + OneLine(path) + " " + NoFileOf(path)};
    return {{}, true, Nearest(iName, CatalogNames(iFolders))};
}

/// Without position. @param iMember what is written at the place that the error tells
DocumentFault MeantAt(const SourceMember& iMember, const std::string& iMessage, const SourceFile& iFile,
                      const std::vector<std::string>& iCatalogFolders)
{
    if (iMessage.find("; did you mean ") != std::string::npos)
        return {{}, true};
    if (BeginsWith(iMessage, "unknown unit "))
        return OfUnit(MeantUnitOf(iMember.value->text));
    if (BeginsWith(iMessage, "no number, or no unit like "))
        return OfUnit(MeantQuantityOf(iMember.value->text));
    if (BeginsWith(iMessage, "unknown catalog "))
    {
        std::vector<std::string> folders = iCatalogFolders;
        folders.push_back(fs::absolute(iFile.Path()).parent_path().string());
        return OfCatalog(iMember.value->text, folders);
    }
    if (BeginsWith(iMessage, "type ") && iMessage.find(" has no attribute ") != std::string::npos)
        return {{}, true, Nearest(iMember.key, AttributesOf(FirstQuoted(iMessage), iFile.Root()))};
    return {{}, true};
}

bool IsOfKey(const std::string& iMessage)
{
    return BeginsWith(iMessage, UnknownKey) ||
           (BeginsWith(iMessage, "type ") && iMessage.find(" has no attribute ") != std::string::npos);
}

/// Of a message without subject: the member that the path ends at, or the array that it leads into.
std::string SubjectOf(const std::string& iPath, const SourceMember& iMember, const std::string& iMessage)
{
    static constexpr std::string_view beginnings[] = {"is missing", "must ", "belongs to ", "stands twice",
                                                      "cannot be added"};
    if (std::none_of(std::begin(beginnings), std::end(beginnings),
                     [&](std::string_view iOne) { return BeginsWith(iMessage, iOne); }))
        return {};
    const std::size_t end = iPath.rfind('/');
    if (end == std::string::npos)
        return "the document ";
    if (!iMember.key.empty() || BeginsWith(iMessage, "is missing"))
        return Quoted(KeyOfStep(iPath.substr(end + 1))) + " ";
    const std::size_t begin = end == 0 ? end : iPath.rfind('/', end - 1) + 1;
    return "an entry of " + Quoted(KeyOfStep(iPath.substr(begin, end - begin))) + " ";
}

/// Nothing where the file cannot be read again: it is no file of its own, or has changed.
std::optional<SourceFile> Reread(const std::string& iPath)
{
    std::error_code ignored;
    if (!fs::is_regular_file(iPath, ignored))
        return std::nullopt;
    try
    {
        return SourceFile(iPath);
    }
    catch (const VYRStandalone::DocumentError&)
    {
        return std::nullopt;
    }
}
} // namespace

DocumentFault FaultOf(const VYRStandalone::DocumentError& iError, const std::vector<std::string>& iCatalogFolders)
{
    if (iError.Line() > 0)
        return {{iError.Line(), iError.Column()}, true};
    const std::optional<SourceFile> file = Reread(iError.File());
    if (!file)
        return {};
    const std::string message = MessageOf(iError);
    if (iError.Path().empty())
    {
        DocumentFault whole;
        whole.subject = SubjectOf({}, {}, message);
        return whole;
    }
    const SourceMember member = file->MemberAt(iError.Path());
    const bool isOfKey = IsOfKey(message) && !member.key.empty();
    DocumentFault fault = MeantAt(member, message, *file, iCatalogFolders);
    fault.position = isOfKey ? member.keyPosition : member.value->position;
    if (BeginsWith(message, UnknownKey))
        fault.unknownKey = member.key;
    fault.subject = SubjectOf(iError.Path(), member, message);
    return fault;
}

std::string PlacedLineOf(const VYRStandalone::DocumentError& iError, const std::vector<std::string>& iCatalogFolders)
{
    const VYRStandalone::DocumentError error = Retold(iError);
    const DocumentFault fault = FaultOf(error, iCatalogFolders);
    std::string line = OneLine(error.what());
    const std::string file = OneLine(error.File());
    if (error.Line() == 0 && fault.hasPlace && BeginsWith(line, file + ":"))
        line.insert(file.size(),
                    ":" + std::to_string(fault.position.line) + ":" + std::to_string(fault.position.column));
    line += fault.remark;
    return fault.suggestion.empty() ? line : line + "; did you mean " + Quoted(fault.suggestion) + "?";
}
} // namespace Tool
