#include <algorithm>
#include <filesystem>
#include <set>

#include "CheckRun.h"
#include "ConfigurationKeys.h"
#include "Wording.h"

namespace Tool
{
namespace
{
namespace fs = std::filesystem;

/// Files beside those that the engine reads, which their writers may take to be read.
std::vector<fs::path> StrangeFiles(const Installation& iInstallation)
{
    const std::vector<std::string> names = ConfigurationFileNames();
    std::set<std::string> known(names.begin(), names.end());
    // Of these two the environment chooses one.
    known.insert({"SolverConfigurations.json", "SolverConfigurations_dxSlope.json"});
    std::vector<fs::path> files;
    for (const std::string& folder : iInstallation.Folders())
    {
        std::error_code ignored;
        for (const fs::directory_entry& entry : fs::directory_iterator(ConfigurationFolder(folder), ignored))
            if (entry.path().extension() == ".json" && known.count(entry.path().filename().string()) == 0 &&
                entry.is_regular_file(ignored))
                files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

Finding UnreadableFinding(const UnreadableFile& iFile)
{
    return FindingIn(iFile.path, iFile.position, FindingKind::UnreadableFile, Severity::Error,
                     iFile.message + "; without this file the engine reads no configuration at all");
}

bool AddsNothing(const SourceFile& iFile)
{
    const std::vector<SourceMember>& members = iFile.Root().members;
    return std::none_of(members.begin(), members.end(), [](const SourceMember& iMember) {
        return iMember.key == "configurations" || FileKeys().count(iMember.key) == 0;
    });
}

/// Such files are what an installation has that needs no more, or one whose writer has forgotten what belongs there. So
/// there is one finding for all of them.
void CheckEmptyFiles(const ConfigurationSource& iWritten, CheckRun& ioRun)
{
    std::vector<const SourceFile*> empty;
    for (const SourceFile& file : iWritten.Files())
        if (AddsNothing(file))
            empty.push_back(&file);
    if (empty.empty())
        return;
    Finding finding = FindingIn(empty.front()->Path(), empty.front()->Root().position, FindingKind::DoesNothing,
                                Severity::Note, "the file has no \"configurations\", and adds none");
    if (empty.size() > 1)
        finding.message +=
            "; nor " + std::string(empty.size() == 2 ? "does " : "do ") + Counted(empty.size() - 1, "other file");
    for (const SourceFile* file : empty)
        if (file != empty.front())
            finding.related.push_back({OneLine(file->Path()), file->Root().position.line});
    ioRun.Add(std::move(finding));
}

/// Where none of the files is there it is the folder that is missing, or the installation that is another one.
bool CheckFolder(const Installation& iInstallation, const ConfigurationSource& iWritten, CheckRun& ioRun)
{
    const std::vector<UnreadableFile>& files = iWritten.Unreadable();
    const bool areMissing =
        files.size() == iWritten.Paths().size() &&
        std::all_of(files.begin(), files.end(), [](const UnreadableFile& iOne) { return iOne.isMissing; });
    if (areMissing)
        ioRun.Add(FindingIn(ConfigurationFolder(iInstallation.Folders().front()), {}, FindingKind::UnreadableFile,
                            Severity::Error,
                            "none of the " + Counted(files.size(), "configuration file") + " is in the installation " +
                                OneLine(iInstallation.Path()) + ", and the engine reads none at all"));
    return areMissing;
}
} // namespace

void CheckFiles(const Installation& iInstallation, const ConfigurationSource& iWritten, CheckRun& ioRun)
{
    if (CheckFolder(iInstallation, iWritten, ioRun))
        return;
    std::vector<fs::path> strange = StrangeFiles(iInstallation);
    for (const UnreadableFile& file : iWritten.Unreadable())
    {
        Finding finding = UnreadableFinding(file);
        std::vector<std::string> names;
        for (const fs::path& one : strange)
            names.push_back(one.filename().string());
        if (file.isMissing)
            finding.suggestion = Nearest(fs::path(file.path).filename().string(), names);
        // A file that bears its name wrong is told once.
        std::erase_if(strange, [&](const fs::path& iOne) { return iOne.filename() == finding.suggestion; });
        ioRun.Add(std::move(finding));
    }
    for (const fs::path& file : strange)
        ioRun.Add(FindingIn(file.string(), {}, FindingKind::IgnoredFile, Severity::Warning,
                            "the engine reads a fixed list of files, and none of this name"));
    CheckEmptyFiles(iWritten, ioRun);
}
} // namespace Tool
