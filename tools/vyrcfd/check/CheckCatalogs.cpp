#include "CheckCatalogs.h"

#include <filesystem>
#include <map>
#include <set>

#include "ChoiceManager.h"
#include "DocumentMessage.h"
#include "JsonWriter.h"
#include "VYRStandaloneCatalog.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// The catalogs in the installation's folders, by their names: of two of one name the first is found.
std::map<std::string, std::string> InstalledCatalogs(const Installation& iInstallation)
{
    constexpr std::string_view suffix = ".catalog.json";
    std::map<std::string, std::string> catalogs;
    for (const std::string& folder : iInstallation.CatalogFolders())
    {
        std::error_code ignored;
        for (const auto& entry : std::filesystem::directory_iterator(folder, ignored))
        {
            const std::string name = entry.path().filename().string();
            const bool isCatalog =
                name.size() > suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
            if (isCatalog && entry.is_regular_file(ignored))
                catalogs.try_emplace(name.substr(0, name.size() - suffix.size()), entry.path().string());
        }
    }
    return catalogs;
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

SourcePosition PositionOf(const VYRStandalone::DocumentError& iError)
{
    if (iError.Line() > 0)
        return {iError.Line(), iError.Column()};
    try
    {
        return SourceFile(iError.File()).PositionAt(iError.Path());
    }
    catch (const VYRStandalone::DocumentError&)
    {
        // It cannot be read at all.
        return {};
    }
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
        Declared(file, ioRun, [&] {
            VYRStandalone::LoadCatalog(file, folders);
            names.emplace(SourceFile(file).Root().TextOf("catalog"));
        });
    for (const auto& [name, file] : InstalledCatalogs(iInstallation))
        if (names.count(name) == 0)
            Declared(file, ioRun, [&, &called = name] { DeclareInstalled(called, iInstallation); });
    // Now that all types are declared, and before anything is asked of an object.
    ChoiceManager::Register();
}

template <class Declare> void CheckCatalogs::Declared(const std::string& iFile, CheckRun& ioRun, Declare iDeclare)
{
    try
    {
        iDeclare();
        m_files.push_back(iFile);
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        m_haveFailed = true;
        ioRun.Add(FindingIn(error.File(), PositionOf(error), FindingKind::UnreadableFile, Severity::Error,
                            MessageOf(error) + "; as long as this catalog is not read, nothing is checked against "
                                               "types"));
    }
}
} // namespace Tool
