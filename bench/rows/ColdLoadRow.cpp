// The configuration files of an installation, loaded in a process that has loaded nothing yet.

#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "Interleaved.h"
#include "Peers.h"
#include "Rows.h"
#include "TemporaryFolder.h"
#include "VYRCfdConfigurator.h"
#include "VYRStandaloneServices.h"

namespace Bench
{
namespace
{
constexpr int Rounds = 21;
constexpr std::size_t BytesAFile = 1024 * 1024 / 16;
/// Without items, so that applying it is looking it up and nothing else. It stands in the last file.
constexpr const char* LastName = "benchLast";

constexpr const char* FileNames[] = {"SolverConfigurations.json",       "conditionsConfig_Flow.json",
                                     "conditionsConfig_Energy.json",    "conditionsConfig_Turbulence.json",
                                     "conditionsConfig_Species.json",   "conditionsConfig_Phase.json",
                                     "solverConfig_Flow.json",          "solverConfig_Energy.json",
                                     "solverConfig_Turbulence.json",    "solverConfig_MultiSpecies.json",
                                     "measurementsConfig.json",         "solverConfig_Radiation.json",
                                     "conditionsConfig_Radiation.json", "conditionsConfig_ECooling.json",
                                     "solverConfig_MultiPhase.json",    "meshFYEConfig.json"};

/// Items of every kind, as written by hand.
std::string ConfigurationText(int iFile, int iNumber)
{
    const std::string tag = std::to_string(iFile) + "x" + std::to_string(iNumber);
    std::string items;
    for (int item = 0; item < 12; ++item)
    {
        const std::string path = "section" + std::to_string(item % 4) + "/attribute" + std::to_string(item);
        items += item > 0 ? ",\n        " : "        ";
        if (item == 0)
            items += R"({ "choices": "laminar, kOmega, SST", "Startups": ", KOmegaModel, SSTModel", )"
                     R"("default": "laminar", "display": "Turbulence model" })";
        else if (item % 6 == 1)
            items += R"({ "path": ")" + path + R"(", "value": "LIFT, DRAG, MOMENT_Y, EFFICIENCY", "list": true })";
        else if (item % 6 == 2)
            items += R"({ "path": ")" + path + R"(", "config": "config)" + tag + R"(", "condition": "value==SST" })";
        else
            items +=
                R"({ "path": ")" + path + R"(", "type": "real", "default": ")" + std::to_string(item) + R"(.25" })";
    }
    return "    {\n      \"name\": \"config" + tag + "\",\n      \"config\": [\n" + items + "\n      ]\n    }";
}

std::string FileText(int iFile, bool iIsLast)
{
    std::string text = "{\n  \"configurations\": [\n";
    for (int number = 0; text.size() < BytesAFile; ++number)
        text += (number > 0 ? ",\n" : "") + ConfigurationText(iFile, number);
    if (iIsLast)
        text += std::string(",\n    { \"name\": \"") + LastName + "\", \"config\": [] }";
    return text + "\n  ]\n}\n";
}

void WriteInstallation(const TemporaryFolder& iFolder)
{
    int number = 0;
    for (const char* name : FileNames)
    {
        ++number;
        iFolder.Write(std::string("reffiles/VYRCfdApp/") + name, FileText(number, number == 16));
    }
}

Work LoadAndLookUp(const std::string& iFolder)
{
    VYRStandalone::SetOfficialVariable("ORXInstallPath", iFolder);
    return {[](std::size_t) {
        if (VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(NULL_var, LastName) != S_FALSE)
            throw std::runtime_error("the configurations do not load");
    }};
}

Work ParseAlone(const std::string& iFolder)
{
    return PeerWork("simdjson", "parse files", iFolder + "/reffiles/VYRCfdApp");
}

/// This program once more. The work is a whole process, which tells its own time.
double InAProcess(const std::string& iWhose, const std::string& iFolder)
{
    const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string command = "'" + self + "' --cold-load " + iWhose + " '" + iFolder + "'";
    std::FILE* const output = popen(command.c_str(), "r");
    double nanoseconds = -1;
    const bool isRead = output != nullptr && std::fscanf(output, "%lf", &nanoseconds) == 1;
    const bool hasEnded = output != nullptr && pclose(output) == 0;
    if (!isRead || !hasEnded || nanoseconds < 0)
        throw std::runtime_error("the process of a cold load has failed: " + command);
    return nanoseconds;
}
} // namespace

double ColdLoadInChild(const std::string& iWhose, const std::string& iFolder)
{
    const Work work = iWhose == "ours" ? LoadAndLookUp(iFolder) : iWhose == "simdjson" ? ParseAlone(iFolder) : Work{};
    return work ? TimeOf(work, 1) : -1;
}

std::vector<Line> ColdLoadRow(const Settings&)
{
    const TemporaryFolder folder;
    WriteInstallation(folder);
    const bool hasPeer = static_cast<bool>(ParseAlone(folder.Path()));
    std::vector<double> ours;
    std::vector<double> peer;
    std::vector<double> ratios;
    // The first pair brings the files into the page cache.
    for (int round = -1; round < Rounds; ++round)
    {
        const double our = InAProcess("ours", folder.Path());
        const double other = hasPeer ? InAProcess("simdjson", folder.Path()) : 1;
        if (round < 0)
            continue;
        ours.push_back(our);
        peer.push_back(other);
        ratios.push_back(our / other);
    }
    Line line{8,
              "load the sixteen files (1 MB) cold, look a name up",
              TimeText(Median(ours)),
              "simdjson: not installed",
              std::nullopt,
              1.3,
              1.1};
    if (hasPeer)
    {
        line.peer = "simdjson parsing alone " + TimeText(Median(peer));
        line.figure = Median(ratios);
    }
    return {line};
}
} // namespace Bench
