#include "CheckCatalogs.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>

#include "CatalogFile.h"
#include "ChoiceManager.h"
#include "DocumentFault.h"
#include "DocumentMessage.h"
#include "InputFile.h"
#include "JsonWriter.h"
#include "VYRStandaloneCatalog.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// The catalogs in the installation's folders.
struct InstalledCatalogs
{
    /// Files by the names of the catalogs: of two of one name the first is found.
    std::map<std::string, std::string> files;
    /// What bears the name of a catalog's file and is none, by the names of the catalogs.
    std::map<std::string, std::string> noFiles;
    /// JSON files that do not bear the name of a catalog's file.
    std::vector<std::string> others;
    /// Folders that cannot be read, and why. One that is not there is none of them: not every folder has catalogs.
    std::map<std::string, std::error_code> unreadable;
};

constexpr char NothingIsChecked[] = "; as long as this catalog is not read, nothing is checked against types";

void AddEntry(const std::filesystem::path& iPath, InstalledCatalogs& ioCatalogs)
{
    const std::string catalog = CatalogSoughtIn(iPath.filename().string());
    const bool isFile = NoFileOf(iPath.string()).empty();
    if (!catalog.empty())
        (isFile ? ioCatalogs.files : ioCatalogs.noFiles).try_emplace(catalog, iPath.string());
    else if (isFile && iPath.extension() == ".json")
        ioCatalogs.others.push_back(iPath.string());
}

void AddFrom(const std::string& iFolder, InstalledCatalogs& ioCatalogs)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(iFolder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        AddEntry(entry->path(), ioCatalogs);
    if (error && error != std::errc::no_such_file_or_directory)
        ioCatalogs.unreadable.emplace(iFolder, error);
}

/// The name of the catalog in a file; empty where there is none.
std::string CatalogIn(const std::string& iFile)
{
    try
    {
        return std::string(SourceFile(iFile).Root().TextOf("catalog"));
    }
    catch (const VYRStandalone::DocumentError&)
    {
        return "";
    }
}

InstalledCatalogs CatalogsOf(const Installation& iInstallation)
{
    InstalledCatalogs catalogs;
    for (const std::string& folder : iInstallation.CatalogFolders())
        AddFrom(folder, catalogs);
    return catalogs;
}

/// A suggestion that the host makes itself, in place of that in its message.
void TakeSuggestionOut(Finding& ioFinding)
{
    constexpr std::string_view Begin = "; did you mean \"";
    constexpr std::string_view End = "\"?";
    const std::size_t begin = ioFinding.message.find(Begin);
    const std::size_t end = ioFinding.message.find(End, begin);
    if (!ioFinding.suggestion.empty() || begin == std::string::npos || end == std::string::npos)
        return;
    const std::string suggestion = ioFinding.message.substr(begin + Begin.size(), end - begin - Begin.size());
    // One with escapes would have to be read first.
    if (suggestion.find('\\') != std::string::npos)
        return;
    ioFinding.suggestion = suggestion;
    ioFinding.message.erase(begin, end + End.size() - begin);
}

/// Declares a catalog by its name, as a model without objects that uses it does: one that is declared already holds.
void DeclareInstalled(const std::string& iName, const Installation& iInstallation)
{
    const std::string model = JsonText([&](JsonWriter& oWriter) {
        oWriter.StartObject();
        WriteKey(oWriter, "model");
        oWriter.Int(1);
        WriteKey(oWriter, "catalogs");
        oWriter.StartArray();
        WriteText(oWriter, iName);
        oWriter.EndArray();
        WriteKey(oWriter, "objects");
        oWriter.StartArray();
        oWriter.EndArray();
        oWriter.EndObject();
    });
    VYRStandalone::Model::Parse(model, "the installation " + OneLine(iInstallation.Path()),
                                iInstallation.CatalogFolders());
}

} // namespace

CheckCatalogs::CheckCatalogs(const Installation& iInstallation, const std::vector<std::string>& iNamed, CheckRun& ioRun)
{
    const std::vector<std::string>& folders = iInstallation.CatalogFolders();
    std::set<std::string, std::less<>> names;
    // Those that are named come first, so that one of them holds in place of an installed one of the same name.
    std::vector<std::string> named = iInstallation.Catalogs();
    named.insert(named.end(), iNamed.begin(), iNamed.end());
    for (const std::string& file : named)
        Declared(file, [&] {
            AdmitInput(file);
            VYRStandalone::LoadCatalog(file, folders);
            names.emplace(SourceFile(file).Root().TextOf("catalog"));
        });
    const InstalledCatalogs installed = CatalogsOf(iInstallation);
    for (const auto& [folder, error] : installed.unreadable)
    {
        m_haveFailed = true;
        ioRun.Add(FindingIn(folder, {}, FindingKind::UnreadableFile, Severity::Error,
                            "cannot be read: " + std::generic_category().message(error.value()) +
                                "; as long as the catalogs in this folder are not read, nothing is checked against "
                                "types"));
    }
    for (const auto& [name, file] : installed.noFiles)
        if (installed.files.count(name) == 0)
            AddMissing(
                name,
                FindingIn(file, {}, FindingKind::UnreadableFile, Severity::Error, NoFileOf(file) + NothingIsChecked),
                ioRun);
    for (const std::string& file : installed.others)
        if (const std::string name = CatalogIn(file);
            !name.empty() && installed.files.count(name) + names.count(name) == 0)
        {
            Finding finding =
                FindingIn(file, {}, FindingKind::IgnoredFile, Severity::Warning,
                          "the catalog " + Quoted(name) + " is sought in a file of another name" + NothingIsChecked);
            finding.suggestion = CatalogFileOf(name);
            AddMissing(name, std::move(finding), ioRun);
        }
    for (const auto& [name, file] : installed.files)
        if (names.count(name) == 0)
            Declared(file, [&, &called = name] { DeclareInstalled(called, iInstallation); });
    AddErrors(folders, ioRun);
    // Now that all types are declared, and before anything is asked of an object.
    ChoiceManager::Register();
}

void CheckCatalogs::AddMissing(const std::string& iName, Finding iFinding, CheckRun& ioRun)
{
    m_haveFailed = true;
    m_missing.push_back(iName);
    ioRun.Add(std::move(iFinding));
}

template <class Declare> void CheckCatalogs::Declared(const std::string& iFile, Declare iDeclare)
{
    try
    {
        iDeclare();
        m_files.push_back(iFile);
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        m_errors.push_back(Retold(error));
    }
}

/// Only when all others are declared, since looking for what was meant takes their types into use.
void CheckCatalogs::AddErrors(const std::vector<std::string>& iFolders, CheckRun& ioRun)
{
    for (const VYRStandalone::DocumentError& error : m_errors)
    {
        // Who uses a catalog that is told already has made no mistake.
        const bool isTold = std::any_of(m_missing.begin(), m_missing.end(), [&](const std::string& iName) {
            return MessageOf(error).find("unknown catalog " + Quoted(iName)) != std::string::npos;
        });
        if (isTold)
            continue;
        const DocumentFault fault = FaultOf(error, iFolders);
        std::string message = MessageOf(error);
        if (!fault.unknownKey.empty())
            message.insert(message.find("key") + 3, " " + Quoted(fault.unknownKey));
        Finding finding = FindingIn(error.File(), fault.position, FindingKind::UnreadableFile, Severity::Error,
                                    fault.subject + message + fault.remark + NothingIsChecked);
        finding.suggestion = fault.suggestion;
        TakeSuggestionOut(finding);
        ioRun.Add(std::move(finding));
    }
    m_haveFailed = m_haveFailed || !m_errors.empty();
}
} // namespace Tool
