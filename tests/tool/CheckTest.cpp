/**
 * @file
 * vyrcfd check. Each folder in data/check/wrong/ is an installation with one mistake, with what is found beside it in
 * expected.txt; those in data/check/odd/ are odd but right. renew_check.sh shows what has changed.
 */

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <sys/stat.h>

#include "ToolTest.h"

namespace
{
namespace fs = std::filesystem;

const std::string Reffiles = "installation/reffiles/VYRCfdApp/";
const std::string Wrong = "check/wrong";
const std::string Odd = "check/odd";

std::vector<std::string> FoldersIn(const std::string& iFolder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(std::string(VYR_TEST_DATA_DIR) + "/" + iFolder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// An installation in which nothing is configured but what a test adds, with the catalog of the rig.
class CheckTest : public testing::Test
{
protected:
    CheckTest()
    {
        for (const char* name :
             {"SolverConfigurations", "conditionsConfig_Flow", "conditionsConfig_Energy", "conditionsConfig_Turbulence",
              "conditionsConfig_Species", "conditionsConfig_Phase", "solverConfig_Flow", "solverConfig_Energy",
              "solverConfig_Turbulence", "solverConfig_MultiSpecies", "measurementsConfig", "solverConfig_Radiation",
              "conditionsConfig_Radiation", "conditionsConfig_ECooling", "solverConfig_MultiPhase", "meshFYEConfig"})
            m_folder.Write(Reffiles + name + ".json", R"({"configurations": []})");
        m_folder.Write("installation/catalogs/Rig.catalog.json", ReadData("check/Rig.catalog.json"));
    }

    /// Takes the configuration files and the catalogs of a folder of the data over.
    void AddCase(const std::string& iCase)
    {
        for (const fs::directory_entry& entry : fs::directory_iterator(std::string(VYR_TEST_DATA_DIR) + "/" + iCase))
        {
            const std::string name = entry.path().filename().string();
            if (entry.path().extension() != ".json")
                continue;
            const bool isCatalog = name.find(".catalog.") != std::string::npos;
            m_folder.Write((isCatalog ? "installation/catalogs/" : Reffiles) + name, ReadData(iCase + "/" + name));
        }
    }

    /// Takes the files away that a folder of the data names in removed.txt.
    void RemoveFiles(const std::string& iCase)
    {
        const std::string list = iCase + "/removed.txt";
        std::istringstream names(fs::exists(std::string(VYR_TEST_DATA_DIR) + "/" + list) ? ReadData(list) : "");
        for (std::string name; std::getline(names, name);)
            ASSERT_TRUE(fs::remove(m_folder.Path(Reffiles + name))) << name;
    }

    void AddConfigurations(const std::string& iText) { m_folder.Write(Reffiles + "SolverConfigurations.json", iText); }

    ToolRun Check(std::vector<std::string> iArguments = {}) const
    {
        iArguments.insert(iArguments.begin(), {"--installation", "installation", "check"});
        return RunTool(iArguments, {m_folder.Path()});
    }

    TemporaryFolder m_folder;
};

/// The lines of findings without the folder of the files, and without the last line, which counts them.
std::string FindingsIn(const ToolRun& iRun)
{
    std::string text = std::regex_replace(iRun.output, std::regex(Reffiles + "|installation/"), "");
    const std::size_t last = text.rfind('\n', text.size() - 2);
    text.erase(last == std::string::npos ? 0 : last + 1);
    return text;
}

std::string FolderName(const testing::TestParamInfo<std::string>& iInfo)
{
    std::string name = iInfo.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

class WrongInstallations : public CheckTest, public testing::WithParamInterface<std::string>
{
};

TEST_P(WrongInstallations, AreFoundToBeSo)
{
    const std::string folder = Wrong + "/" + GetParam();
    AddCase(folder);
    RemoveFiles(folder);
    const ToolRun run = Check();
    const std::string found = FindingsIn(run);
    if (const char* renewed = std::getenv("VYR_RENEWED_CHECKS"); renewed != nullptr)
    {
        fs::create_directories(std::string(renewed) + "/" + GetParam());
        std::ofstream(std::string(renewed) + "/" + GetParam() + "/expected.txt", std::ios::binary) << found;
        GTEST_SKIP() << "renewed, not compared";
    }
    EXPECT_EQ(found, ReadData(folder + "/expected.txt")) << run.errors;
    EXPECT_NE(found, "");
    EXPECT_EQ(run.status, found.find(": error: ") != std::string::npos ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Check, WrongInstallations, testing::ValuesIn(FoldersIn(Wrong)), FolderName);

class OddInstallations : public CheckTest, public testing::WithParamInterface<std::string>
{
};

TEST_P(OddInstallations, AreFoundToBeRight)
{
    AddCase(Odd + "/" + GetParam());
    const ToolRun run = Check({"--strict"});
    EXPECT_EQ(FindingsIn(run), "");
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
}

INSTANTIATE_TEST_SUITE_P(Check, OddInstallations, testing::ValuesIn(FoldersIn(Odd)), FolderName);

TEST(WrongFolders, HaveOneAtLeastForEveryKindOfFinding)
{
    const std::set<std::string> kinds{"unreadable-file",
                                      "ignored-file",
                                      "unknown-key",
                                      "wrong-kind",
                                      "does-nothing",
                                      "ignored-key",
                                      "duplicate-name",
                                      "unknown-config",
                                      "unused-config",
                                      "cycle",
                                      "bad-condition",
                                      "odd-condition",
                                      "swapped-lists",
                                      "wrong-separator",
                                      "unequal-lists",
                                      "blank-in-list",
                                      "path-nowhere",
                                      "unknown-type",
                                      "default-not-in-choices",
                                      "default-invalid",
                                      "default-reopens-differently",
                                      "wrong-type",
                                      "duplicate-entry"};
    std::set<std::string> found;
    for (const std::string& name : FoldersIn(Wrong))
    {
        const std::string text = ReadData(Wrong + "/" + name + "/expected.txt");
        const std::regex kind(R"(\[([a-z-]+)\]\n)");
        for (std::sregex_iterator match(text.begin(), text.end(), kind); match != std::sregex_iterator(); ++match)
            found.insert((*match)[1]);
    }
    EXPECT_EQ(found, kinds);
}

TEST_F(CheckTest, Json_HoldsAllOfAFinding)
{
    AddConfigurations(R"({"configurations": [
  {"name": "main", "config": [{"path": "relaxation", "defualt": "0.5"}]},
  {"name": "main"}]})");
    const ToolRun run = Check({"--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, R"({
  "findings": [
    {
      "kind": "unknown-key",
      "severity": "error",
      "file": "installation/reffiles/VYRCfdApp/SolverConfigurations.json",
      "line": 2,
      "column": 54,
      "configuration": "main",
      "item": 1,
      "key": "defualt",
      "message": "no key of an item is called \"defualt\"",
      "suggestion": "default",
      "related": []
    },
    {
      "kind": "duplicate-name",
      "severity": "error",
      "file": "installation/reffiles/VYRCfdApp/SolverConfigurations.json",
      "line": 3,
      "column": 12,
      "configuration": "main",
      "item": null,
      "key": "name",
      "message": "a configuration \"main\" is defined already in )"
                          R"(installation/reffiles/VYRCfdApp/SolverConfigurations.json:2, and that one holds in place )"
                          R"(of this one",
      "suggestion": null,
      "related": [
        {
          "file": "installation/reffiles/VYRCfdApp/SolverConfigurations.json",
          "line": 2
        }
      ]
    }
  ]
}
)");
}

TEST_F(CheckTest, Json_WithoutFindings_IsAnEmptyList)
{
    AddConfigurations(R"({"configurations": [{"name": "main"}]})");
    const ToolRun run = Check({"--json"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "{\n  \"findings\": []\n}\n");
}

constexpr char Unused[] = R"({"configurations": [{"name": "main"}, {"name": "idle"}]})";

TEST_F(CheckTest, Warnings_FailOnlyWhenItIsStrict)
{
    AddConfigurations(Unused);
    EXPECT_EQ(Outcome(Check()), Outcome(0, ""));
    EXPECT_EQ(Outcome(Check({"--strict"})),
              Outcome(1, "vyrcfd: the check found 0 errors, 1 warning and 0 notes in 2 configurations with 0 items\n"));
}

TEST_F(CheckTest, Notes_DoNotFailEvenWhenItIsStrict)
{
    AddConfigurations(
        R"({"configurations": [{"name": "main", "config": [{"path": "pump", "type": "real", "config": "pump"}]},
                               {"name": "pump"}]})");
    const ToolRun run = Check({"--strict"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_NE(FindingsIn(run).find(": note: "), std::string::npos);
}

TEST_F(CheckTest, WithoutCatalogs_OnlyTheFilesAreChecked)
{
    fs::remove_all(m_folder.Path("installation/catalogs"));
    AddConfigurations(R"({"configurations": [{"name": "main", "config": [{"path": "nowhere", "default": "1"}]}]})");
    const ToolRun run = Check();
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(FindingsIn(run), "SolverConfigurations.json:1:30: note: \"main\": no other configuration refers to "
                               "\"main\", and no catalog says what is applied by itself [unused-config]\n");
}

TEST_F(CheckTest, WithoutCatalogs_AllThatNothingRefersTo_IsToldInOneNote)
{
    fs::remove_all(m_folder.Path("installation/catalogs"));
    AddConfigurations(R"({"configurations": [{"name": "a"}, {"name": "b"},
        {"name": "c"}]})");
    const ToolRun run = Check();
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(FindingsIn(run), "SolverConfigurations.json:1:30: note: \"a\": no other configuration refers to \"a\", "
                               "and no catalog says what is applied by itself; the same holds for 2 other "
                               "configurations [unused-config]\n");
}

TEST_F(CheckTest, AFolderOfCatalogsThatCannotBeRead_IsOneError)
{
    fs::remove_all(m_folder.Path("installation/catalogs"));
    m_folder.Write("installation/catalogs", "no folder");
    AddConfigurations(R"({"configurations": [{"name": "a"}, {"name": "b"}]})");
    const ToolRun run = Check();
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(FindingsIn(run), "catalogs:1:1: error: cannot be read: Not a directory; as long as the catalogs in this "
                               "folder are not read, nothing is checked against types [unreadable-file]\n");
}

constexpr char MainOnly[] =
    R"({"configurations": [{"name": "main", "config": [{"path": "relaxation", "default": "1"}]}]})";

TEST_F(CheckTest, CatalogsThatAreNamed_AreTakenBesideTheInstalled)
{
    AddConfigurations(MainOnly);
    m_folder.Write("Other.catalog.json", R"({"catalog": "Other", "uses": ["Rig"], "types": [
        {"name": "Other", "base": "Pump", "configurations": ["main"]}]})");
    const std::string expected =
        "SolverConfigurations.json:1:58: error: \"main\", item 1: \"relaxation\" leads nowhere "
        "on \"Other\": No attribute relaxation; there are \"defaultManagement\", \"speed\", "
        "\"power\" [path-nowhere]\n";
    EXPECT_EQ(FindingsIn(Check()), "");
    EXPECT_EQ(FindingsIn(Check({"Other.catalog.json"})), expected);
    EXPECT_EQ(FindingsIn(Check({"--catalog", "Other.catalog.json"})), expected);
}

TEST_F(CheckTest, ACatalogThatIsNamed_HoldsInPlaceOfAnInstalledOneOfItsName)
{
    AddConfigurations(MainOnly);
    m_folder.Write("Rig.catalog.json", R"({"catalog": "Rig", "types": [
        {"name": "Rig", "base": "VYRCfdValues", "configurations": ["main"]}]})");
    EXPECT_EQ(FindingsIn(Check({"Rig.catalog.json"})),
              "SolverConfigurations.json:1:58: error: \"main\", item 1: \"relaxation\" leads nowhere on \"Rig\": No "
              "attribute relaxation; there is \"defaultManagement\" [path-nowhere]\n");
}

TEST_F(CheckTest, Json_HoldsWhatIsWrongWithAFile)
{
    AddConfigurations("{\n  \"configurations\": [}\n");
    const ToolRun run = Check({"--json"});
    EXPECT_EQ(Outcome(run), Outcome(1, "vyrcfd: the check found 1 error, 0 warnings and 0 notes in 0 configurations "
                                       "with 0 items\n"));
    EXPECT_EQ(run.output, R"({
  "findings": [
    {
      "kind": "unreadable-file",
      "severity": "error",
      "file": "installation/reffiles/VYRCfdApp/SolverConfigurations.json",
      "line": 2,
      "column": 22,
      "configuration": null,
      "item": null,
      "key": null,
      "message": "the \"[\" at 2:21 is not closed: \"]\" is missing in front of this \"}\", or this \"}\" is one too many; without this file the engine reads no configuration at all",
      "suggestion": null,
      "related": []
    }
  ]
}
)");
}

/// What is said of attributes that an object need not have is what the engine does with an object that has none.
TEST_F(CheckTest, ADefaultOfAnOptionalAttribute_FailsOnAnObjectWithoutIt)
{
    AddConfigurations(R"({"configurations": [{"name": "main", "config": [{"path": "note", "default": "x"}]}]})");
    m_folder.Write("bare.model.json",
                   R"({"model": 1, "catalogs": ["Rig"], "objects": [{"type": "Rig", "name": "Rig.1"}]})");
    m_folder.Write("noted.model.json", R"({"model": 1, "catalogs": ["Rig"], "objects": [
        {"type": "Rig", "name": "Rig.1", "added": {"note": {"kind": "string", "value": null}}}]})");
    const auto apply = [&](const char* iModel) {
        return RunTool({"--installation", "installation", "apply", iModel, "Rig.1", "main"}, {m_folder.Path()});
    };
    EXPECT_NE(FindingsIn(Check()).find("on any other the configuration fails here [path-nowhere]"), std::string::npos);
    EXPECT_EQ(apply("bare.model.json").status, 1);
    EXPECT_EQ(Outcome(apply("noted.model.json")), Outcome(0, ""));
}

TEST_F(CheckTest, FilesOfAllFoldersOfAnInstallation_AreLookedAt)
{
    AddConfigurations(R"({"configurations": [{"name": "main"}]})");
    m_folder.Write("over/reffiles/VYRCfdApp/meshFYEConfig.json", "[]");
    m_folder.Write("over/reffiles/VYRCfdApp/more.json", "{}");
    const ToolRun run = RunTool({"--installation", "over:installation", "check"}, {m_folder.Path()});
    EXPECT_EQ(FindingsIn(run),
              "over/reffiles/VYRCfdApp/meshFYEConfig.json:1:1: error: a configuration file must be an "
              "object, not an array; without this file the engine reads no configuration at all "
              "[unreadable-file]\n"
              "over/reffiles/VYRCfdApp/more.json:1:1: warning: the engine reads a fixed list of files, "
              "and none of this name [ignored-file]\n");
}

TEST_F(CheckTest, AnInstallationWithoutAnyFile_IsOneError)
{
    fs::remove_all(m_folder.Path("installation/reffiles"));
    const std::string expected = "1:1: error: none of the 16 configuration files is in the installation installation, "
                                 "and the engine reads none at all [unreadable-file]\n";
    EXPECT_EQ(FindingsIn(Check()), ":" + expected);
}

TEST_F(CheckTest, APipeInPlaceOfAFile_IsTold_AndNobodyWaitsForIt)
{
    AddConfigurations(R"({"configurations": [{"name": "main"}]})");
    const std::string pipe = m_folder.Path(Reffiles + "meshFYEConfig.json");
    fs::remove(pipe);
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(FindingsIn(Check()), "meshFYEConfig.json:1:1: error: is a pipe or a device, not a file; without this "
                                   "file the engine reads no configuration at all [unreadable-file]\n");
}

TEST_F(CheckTest, ACatalogUnderAnotherName_IsTold_AndWhatItLacksIsNot)
{
    AddConfigurations(R"({"configurations": [{"name": "main", "config": [{"path": "nowhere", "default": "1"}]}]})");
    const std::string folder = m_folder.Path("installation/catalogs/");
    fs::rename(folder + "Rig.catalog.json", folder + "Rig.json");
    m_folder.Write("installation/catalogs/notes.json", R"({"author": "nobody"})");
    EXPECT_EQ(FindingsIn(Check()),
              "catalogs/Rig.json:1:1: warning: the catalog \"Rig\" is sought in a file of another name; as "
              "long as this catalog is not read, nothing is checked against types; did you mean \"Rig.catalog.json\"? "
              "[ignored-file]\n");
}

TEST_F(CheckTest, APipeOrAFolderInPlaceOfACatalog_IsTold_AndNobodyWaitsForIt)
{
    AddConfigurations(R"({"configurations": [{"name": "main"}]})");
    const std::string catalog = m_folder.Path("installation/catalogs/Rig.catalog.json");
    m_folder.Write("installation/catalogs/User.catalog.json", R"({"catalog": "User", "uses": ["Rig"], "types": []})");
    const auto findings = [](const std::string& iWhat) {
        return "catalogs/Rig.catalog.json:1:1: error: " + iWhat +
               "; as long as this catalog is not read, nothing is checked against types [unreadable-file]\n";
    };
    fs::remove(catalog);
    ASSERT_EQ(mkfifo(catalog.c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(FindingsIn(Check()), findings("is a pipe or a device, not a file"));
    fs::remove(catalog);
    fs::create_symlink("/dev/null", catalog);
    EXPECT_EQ(FindingsIn(Check()), findings("is a pipe or a device, not a file"));
    fs::remove(catalog);
    fs::create_directory(catalog);
    EXPECT_EQ(FindingsIn(Check()), findings("is a folder, not a file"));
}

TEST_F(CheckTest, AMistakeInACatalog_NamesTheKey)
{
    AddConfigurations(R"({"configurations": [{"name": "main"}]})");
    const std::pair<const char*, const char*> mistakes[] = {
        {R"({"types": []})", "1:1: error: \"catalog\" is missing"},
        {R"({"catalog": "C"})", "1:1: error: \"types\" is missing"},
        {R"({"catalog": "", "types": []})", "1:13: error: \"catalog\" must not be empty"},
        {R"({"catalog": "C", "types": [{"name": "T"}, 7]})",
         "1:43: error: an entry of \"types\" must be an object, not an integer"},
        {R"({"catalog": "C", "types": [{"name": "T", "attributes": [{"kind": "real"}]}]})",
         "1:57: error: \"name\" is missing"},
        {R"({"catalog": "C", "types": [{"name": "T", "attributes": [{"name": "a"}]}]})",
         "1:57: error: \"kind\" is missing"},
        {R"({"catalog": "C", "types": [{"name": "T", "attributes": [{"name": "a", "kind": "list"}]}]})",
         "1:57: error: \"of\" is missing"},
        {R"({"catalog": "C", "types": [{"name": "T", "attributes": [{"name": "a", "kind": "enumeration"}]}]})",
         "1:57: error: \"values\" is missing"},
        {"[]", "1:1: error: the document must be an object, not an array"},
    };
    for (const auto& [catalog, finding] : mistakes)
    {
        m_folder.Write("C.catalog.json", catalog);
        EXPECT_EQ(FindingsIn(Check({m_folder.Path("C.catalog.json")})),
                  m_folder.Path("C.catalog.json:") + finding +
                      "; as long as this catalog is not read, nothing is checked against types [unreadable-file]\n");
    }
}

TEST_F(CheckTest, ACatalogThatIsSoughtInAFolderTwice_NamesItOnce)
{
    AddConfigurations(R"({"configurations": [{"name": "main"}]})");
    m_folder.Write("installation/catalogs/User.catalog.json", R"({"catalog": "User", "uses": ["No"], "types": []})");
    const std::string findings = FindingsIn(Check());
    EXPECT_NE(findings.find("\"No.catalog.json\" in \"catalogs\", and none of that name"), std::string::npos)
        << findings;
}

TEST_F(CheckTest, ACatalogThatIsNotThere_IsAFinding)
{
    AddConfigurations(R"({"configurations": [{"name": "main"}]})");
    const ToolRun run = Check({"nothing.catalog.json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(FindingsIn(run),
              "nothing.catalog.json:1:1: error: cannot be opened: No such file or directory; as long as "
              "this catalog is not read, nothing is checked against types [unreadable-file]\n");
}

TEST_F(CheckTest, DeepNesting_IsRead)
{
    const std::string deep = std::string(900, '[') + std::string(900, ']');
    AddConfigurations(R"({"configurations": [{"name": "main", "config": [{"path": "relaxation", "default": )" + deep +
                      "}]}]}");
    EXPECT_EQ(FindingsIn(Check()), "SolverConfigurations.json:1:83: error: \"main\", item 1: \"default\" must be a "
                                   "text, not an array [wrong-kind]\n");
}

TEST_F(CheckTest, LongTexts_AreCutInMessages)
{
    AddConfigurations(R"({"configurations": [{"name": "main", "config": [{"path": ")" + std::string(5000, 'x') +
                      R"(", "default": "1"}]}]})");
    EXPECT_EQ(FindingsIn(Check()), "SolverConfigurations.json:1:58: error: \"main\", item 1: \"" +
                                       std::string(999, 'x') + "... [path-nowhere]\n");
}

TEST_F(CheckTest, Findings_StandInTheOrderOfTheFilesAndOfTheirPlaces)
{
    m_folder.Write(Reffiles + "meshFYEConfig.json", R"({"wrong": 1})");
    m_folder.Write(Reffiles + "conditionsConfig_Flow.json", R"({"wrong": 1, "wronger": 1})");
    AddConfigurations(R"({"configurations": [{"name": "main"}], "wrong": 1})");
    const std::string text = FindingsIn(Check());
    std::string places;
    const std::regex place(R"((\w+)\.json:(\d+):(\d+))");
    for (std::sregex_iterator match(text.begin(), text.end(), place); match != std::sregex_iterator(); ++match)
        places += match->str() + "\n";
    EXPECT_EQ(places, "SolverConfigurations.json:1:40\n"
                      "conditionsConfig_Flow.json:1:2\n"
                      "conditionsConfig_Flow.json:1:14\n"
                      "meshFYEConfig.json:1:2\n");
}

TEST_F(ToolTest, Check_OfTheSample_FindsNothing)
{
    const auto before = Files();
    const ToolRun run = Run({"check", "--strict"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output.substr(0, 29), "0 errors, 0 warnings and 0 no");
    EXPECT_EQ(Files(), before);
}

TEST_F(ToolTest, Check_OfTheSampleAgainstOneOfItsCatalogs_FindsNothing)
{
    EXPECT_EQ(Outcome(Run({"check", "--strict", "samples/catalogs/ExternalFlow.catalog.json"})), Outcome(0, ""));
}

TEST_F(ToolTest, Check_OfTheSampleWithTheOtherFirstFile_FindsNothing)
{
    ToolSettings settings{m_folder.Path()};
    settings.environment["VYRCfd_USE_DxSLOPE_CONVG_CRIT"] = "";
    EXPECT_EQ(Outcome(Run({"check", "--strict"}, settings)), Outcome(0, ""));
}
} // namespace
