/**
 * @file
 * What the tool says of input that it cannot use: one line, the exit status, and every file as it was.
 */

#include <functional>
#include <regex>

#include "ToolTest.h"

namespace
{
using Break = std::function<void(const TemporaryFolder&)>;
using Arguments = std::vector<std::string>;

const std::string Model = "samples/models/externalFlow.model.json";
const std::string Catalog = "samples/catalogs/FlowCommon.catalog.json";
const std::string Configuration = "samples/reffiles/VYRCfdApp/solverConfig_Flow.json";

const Arguments ShowModel{"show", Model};
const Arguments List{"list"};
const Arguments Apply{"apply", Model, "Solver.1", "externalFlow"};
const Arguments ApplyAndSave{"apply", Model, "Solver.1", "externalFlow", "-o", Model};

Break Nothing()
{
    return [](const TemporaryFolder&) {};
}

Break Written(const std::string& iFile, const std::string& iText)
{
    return [=](const TemporaryFolder& iFolder) { iFolder.Write(iFile, iText); };
}

Break Removed(const std::string& iFile)
{
    return [=](const TemporaryFolder& iFolder) { std::filesystem::remove(iFolder.Path(iFile)); };
}

Break Replaced(const std::string& iFile, const std::string& iOld, const std::string& iNew)
{
    return [=](const TemporaryFolder& iFolder) {
        std::string text = iFolder.Read(iFile);
        const std::size_t at = text.find(iOld);
        ASSERT_NE(at, std::string::npos) << iOld;
        iFolder.Write(iFile, text.replace(at, iOld.size(), iNew));
    };
}

/// A regular file that can be opened and not read, also by the superuser: no process has memory at address 0.
Break Unreadable(const std::string& iFile)
{
    return [=](const TemporaryFolder& iFolder) {
        std::filesystem::remove(iFolder.Path(iFile));
        std::filesystem::create_symlink("/proc/self/mem", iFolder.Path(iFile));
    };
}

struct BadInput
{
    const char* name;
    Break breakIt;
    Arguments arguments;
    int status;
    /// Of standard error, whole.
    std::string errors;
};

void PrintTo(const BadInput& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class BadInputs : public ToolTest, public testing::WithParamInterface<BadInput>
{
};

TEST_P(BadInputs, AreToldInOneLine_AndNothingIsTouched)
{
    const BadInput& input = GetParam();
    AddSmallModel();
    input.breakIt(m_folder);
    const auto before = Files();
    const ToolRun run = Run(input.arguments);
    EXPECT_EQ(Outcome(run), Outcome(input.status, input.errors));
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(Files(), before);
}

std::string NameOf(const testing::TestParamInfo<BadInput>& iInfo)
{
    return iInfo.param.name;
}

const BadInput Models[] = {
    {"Missing",
     Nothing(),
     {"show", "nothing.model.json"},
     1,
     "nothing.model.json: cannot be opened: No such file or directory\n"},
    {"Folder", Nothing(), {"show", "samples"}, 1, "samples: is a folder, not a file\n"},
    {"Unreadable", Unreadable(Model), ShowModel, 1, Model + ": cannot be read: Input/output error\n"},
    {"Empty", Written(Model, ""), ShowModel, 1,
     Model + ":1:1: the file is empty; a document between { and } is wanted\n"},
    {"Truncated", Written(Model, "{\n    \"model\": 1,\n    "), ShowModel, 1,
     Model + ":3:5: the document ends, and the \"{\" at 1:1 is not closed by \"}\"\n"},
    {"NoUtf8", Written(Model, "{\n    \"model\": 1,\n    \"catalogs\": [ \"Fl\xFFow\" ] }"), Apply, 1,
     Model + ":3:22: the byte 0xFF is no UTF-8: the file is saved in another encoding, or damaged; save it as UTF-8\n"},
    {"ArrayInPlaceOfObject", Written(Model, "[]"), ShowModel, 1, Model + ": must be an object, not an array\n"},
    {"ObjectsOfWrongShape", Written(Model, R"({"model": 1, "catalogs": [], "objects": {}})"), ShowModel, 1,
     Model + ":1:41: /objects: must be an array, not an object\n"},
    {"UnknownType", Replaced(Model, "ExternalFlowSolver", "ExternalFlowSolvers"), ShowModel, 1,
     Model + ":6:15: /objects/0/type: unknown type \"ExternalFlowSolvers\"; did you mean \"ExternalFlowSolver\"?\n"},
    {"UnknownAttribute", Replaced(Model, "\"iterations\"", "\"iteration\""), ShowModel, 1,
     Model +
         ":12:9: /objects/0/values/iteration: type \"ExternalFlowSolver\" has no attribute \"iteration\"; did you mean "
         "\"iterations\"?\n"},
    {"ValueOfWrongKind", Replaced(Model, "4000", "4000.5"), ShowModel, 1,
     Model + ":12:23: /objects/0/values/iterations: an integer is wanted\n"},
    {"ReferenceToNothing", Replaced(Model, "{ \"ref\": 2 }", "{ \"ref\": 77 }"), ShowModel, 1,
     Model + ":14:26: /objects/0/values/mesh/ref: no object has the id 77\n"},
    {"CatalogMisspelt", Replaced(Model, "\"ExternalFlow\"", "\"ExternalFlwo\""), ShowModel, 1,
     Model + ":3:16: /catalogs/0: unknown catalog \"ExternalFlwo\": no file \"ExternalFlwo.catalog.json\" in "
             "\"samples/models\", \"samples/catalogs\", and none of that name is declared; did you mean "
             "\"ExternalFlow\"?\n"},
    {"UnitMisspelt", Replaced(Model, "3.06 degree", "3.06 degre"), ShowModel, 1,
     Model + ":21:30: /objects/0/values/freestream/values/angleOfAttack: no number, or no unit like \"rad\": "
             "\"3.06 degre\"; did you mean \"3.06 degree\"?\n"},
    {"CatalogThatIsAFolder",
     [](const TemporaryFolder& iFolder) {
         Replaced(Model, "\"ExternalFlow\"", "\"Folder\"")(iFolder);
         std::filesystem::create_directory(iFolder.Path("samples/catalogs/Folder.catalog.json"));
     },
     ShowModel, 1,
     Model + ":3:16: /catalogs/0: unknown catalog \"Folder\": no file \"Folder.catalog.json\" in \"samples/models\", "
             "\"samples/catalogs\", and none of that name is declared; samples/catalogs/Folder.catalog.json is a "
             "folder, not a file\n"},
    {"CatalogNotFound", Replaced(Model, "\"ExternalFlow\"", "\"Nowhere\""), ShowModel, 1,
     Model + ":3:16: /catalogs/0: unknown catalog \"Nowhere\": no file \"Nowhere.catalog.json\" in \"samples/models\", "
             "\"samples/catalogs\", and none of that name is declared\n"},
};
INSTANTIATE_TEST_SUITE_P(Models, BadInputs, testing::ValuesIn(Models), NameOf);

const BadInput Catalogs[] = {
    {"Missing",
     Nothing(),
     {"show", Model, "--catalog", "nothing.catalog.json"},
     1,
     "nothing.catalog.json: cannot be opened: No such file or directory\n"},
    {"Unreadable", Unreadable(Catalog), ShowModel, 1, Catalog + ": cannot be read: Input/output error\n"},
    {"Truncated", Written(Catalog, "{\n    \"catalog\": \"FlowCommon\",\n    \"types\": [ { \"name\": \"Flow"),
     ShowModel, 1,
     Catalog + ":3:31: the document ends inside the text at 3:26: its closing quotation mark is missing\n"},
    {"NoUtf8",
     Written(Catalog, "{\n    \"catalog\": \"FlowCommon\",\n    \"types\": [ { \"name\": \"Sutherland\xC3\x28\" } ] }"),
     ShowModel, 1,
     Catalog +
         ":3:37: the byte 0xC3 is no UTF-8: the file is saved in another encoding, or damaged; save it as UTF-8\n"},
    {"WrongShape", Replaced(Catalog, "\"kind\": \"real\"", "\"kind\": 7"), ShowModel, 1,
     Catalog + ":9:52: /types/0/attributes/0/kind: must be a text, not an integer\n"},
    {"UnknownKind", Replaced(Catalog, "\"kind\": \"real\"", "\"kind\": \"rael\""), ShowModel, 1,
     Catalog + ":9:52: /types/0/attributes/0/kind: unknown kind \"rael\"; did you mean \"real\"?\n"},
};
INSTANTIATE_TEST_SUITE_P(Catalogs, BadInputs, testing::ValuesIn(Catalogs), NameOf);

constexpr const char* CutShort = "{\n    \"configurations\": [ { \"name\": \"external";

const BadInput ConfigurationFiles[] = {
    {"Missing", Removed(Configuration), Apply, 1,
     "reffiles/VYRCfdApp/solverConfig_Flow.json: no such file in the installation samples\n"},
    {"MissingInList", Removed(Configuration), List, 1,
     "reffiles/VYRCfdApp/solverConfig_Flow.json: no such file in the installation samples\n"},
    {"SeveralMissing",
     [](const TemporaryFolder& iFolder) {
         Removed(Configuration)(iFolder);
         Written("samples/reffiles/VYRCfdApp/meshFYEConfig.json", "{")(iFolder);
     },
     List, 1,
     "reffiles/VYRCfdApp/solverConfig_Flow.json: no such file in the installation samples\n"
     "samples/reffiles/VYRCfdApp/meshFYEConfig.json:1:2: the document ends, and the \"{\" at 1:1 is not closed by "
     "\"}\"\n"},
    {"Unreadable", Unreadable(Configuration), Apply, 1, Configuration + ": cannot be read: Input/output error\n"},
    {"Truncated", Written(Configuration, CutShort), ApplyAndSave, 1,
     Configuration + ":2:44: the document ends inside the text at 2:35: its closing quotation mark is missing\n"},
    {"TruncatedInList", Written(Configuration, CutShort), List, 1,
     Configuration + ":2:44: the document ends inside the text at 2:35: its closing quotation mark is missing\n"},
    {"NoUtf8", Written(Configuration, "{\n    \"configurations\": [ { \"name\": \"freestream\xE4ir\" } ] }"),
     ApplyAndSave, 1,
     Configuration +
         ":2:46: the byte 0xE4 is no UTF-8: the file is saved in another encoding, or damaged; save it as UTF-8\n"},
    {"Folder",
     [](const TemporaryFolder& iFolder) {
         Removed(Configuration)(iFolder);
         std::filesystem::create_directory(iFolder.Path(Configuration));
     },
     List, 1, Configuration + ": is a folder, not a file\n"},
    {"LinkToNothing",
     [](const TemporaryFolder& iFolder) {
         Removed(Configuration)(iFolder);
         std::filesystem::create_symlink("nothing.json", iFolder.Path(Configuration));
     },
     List, 1, Configuration + ": is a link that leads to no file\n"},
    {"EscapeThatIsNone", Written(Configuration, R"({"configurations": [{"name": "C:\data"}]})"), List, 1,
     Configuration +
         R"(:1:33: a backslash itself is written \\; otherwise behind a backslash stands one of " / b f n r t, or )"
         R"(u and four digits)"
         "\n"},
    {"ByteOrderMark", Written(Configuration, "\xEF\xBB\xBF{}"), Apply, 1,
     Configuration + ":1:1: a byte order mark has no place in JSON; save the file as UTF-8 without one\n"},
    {"NoObject", Written(Configuration, "[]"), Apply, 1,
     Configuration + ":1:1: a configuration file must be an object, not an array\n"},
};
INSTANTIATE_TEST_SUITE_P(ConfigurationFiles, BadInputs, testing::ValuesIn(ConfigurationFiles), NameOf);

struct Oddity
{
    const char* name;
    /// Of the last file.
    const char* text;
    /// Behind the file's name.
    const char* note;
    /// Name, items and line of the definitions in the file.
    const char* listed;
};

void PrintTo(const Oddity& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Oddities : public ToolTest, public testing::WithParamInterface<Oddity>
{
};

TEST_P(Oddities, OfConfigurationFiles_ArePassedOverWithANote)
{
    const std::string last = "samples/reffiles/VYRCfdApp/meshFYEConfig.json";
    const Oddity& oddity = GetParam();
    Write(last, "{}");
    const ToolRun list = Run(List);
    const ToolRun apply = Run(Apply);
    ASSERT_EQ(Outcome(list), Outcome(0, ""));
    ASSERT_EQ(apply.status, 0);

    Write(last, oddity.text);
    const std::string note = "note: " + last + oddity.note + "; see vyrcfd check\n";
    const ToolRun oddList = Run(List);
    const ToolRun oddApply = Run(Apply);
    EXPECT_EQ(Outcome(oddList), Outcome(0, note));
    const std::string listed = oddList.output.substr(oddList.output.find(last) + last.size() + 1);
    EXPECT_EQ(std::regex_replace(listed, std::regex(" +"), " "), oddity.listed);
    EXPECT_EQ(Outcome(oddApply), Outcome(0, note + apply.errors));
    EXPECT_EQ(oddApply.output, apply.output);
}

const Oddity PassedOver[] = {
    {"ConfigurationsNoArray", R"({"configurations": {}})",
     ":1:20: \"configurations\" must be an array, not an object, and is passed over", ""},
    {"ConfigurationNoObject", R"({"configurations": ["a", {"name": "b"}]})",
     ":1:21: a configuration must be an object, not a text, and is passed over",
     " \"\" 0 items, line 1\n b 0 items, line 1\n"},
    {"NoName", R"({"configurations": [{"name": "a"}, {"nme": "b", "config": []}]})",
     ":1:36: the configuration has no \"name\", and is passed over", " a 0 items, line 1\n \"\" 0 items, line 1\n"},
    {"NameNoText", R"({"configurations": [{"name": 1}]})",
     ":1:30: \"name\" must be a text, not a number, and is passed over", " \"\" 0 items, line 1\n"},
    {"ConfigNoArray", R"({"configurations": [{"name": "a", "config": "b"}]})",
     ":1:45: \"config\" must be an array, not a text, and is passed over", " a 0 items, line 1\n"},
    {"ItemNoObject", R"({"configurations": [{"name": "a", "config": [null, {}]}]})",
     ":1:46: an item must be an object, not null, and is passed over", " a 2 items, line 1\n"},
    {"NumberInPlaceOfText", R"({"configurations": [{"name": "a", "config": [{}, {"path": "p", "default": 0.7}]}]})",
     ":1:75: \"default\" must be a text, not a number, and is passed over", " a 2 items, line 1\n"},
    {"TextInPlaceOfBoolean", R"({"configurations": [{"name": "a", "config": [{"list": "true"}]}]})",
     ":1:55: \"list\" must be true or false, not a text, and is passed over", " a 1 item, line 1\n"},
    {"Two", R"({"configurations": [{"name": 1, "config": null}]})",
     ":1:43: \"config\" must be an array, not null, and is passed over, as is 1 other mistake",
     " \"\" 0 items, line 1\n"},
    {"Three", R"({"configurations": [{"name": 1, "config": null}, 7]})",
     ":1:43: \"config\" must be an array, not null, and is passed over, as are 2 other mistakes",
     " \"\" 0 items, line 1\n \"\" 0 items, line 1 without effect: defined in "
     "samples/reffiles/VYRCfdApp/meshFYEConfig.json, line 1\n"},
};
INSTANTIATE_TEST_SUITE_P(ConfigurationFiles, Oddities, testing::ValuesIn(PassedOver),
                         [](const testing::TestParamInfo<Oddity>& iInfo) { return iInfo.param.name; });

const BadInput Names[] = {
    {"ObjectLikeAnother",
     Nothing(),
     {"apply", Model, "Solver1", "externalFlow", "-o", Model},
     1,
     Model + ": no top-level object \"Solver1\"; did you mean \"Solver.1\"?\n"},
    {"ObjectLikeNone",
     Nothing(),
     {"show", Model, "Nobody"},
     1,
     Model + ": no top-level object \"Nobody\"; there are \"Solver.1\", \"Mesh.1\", \"FarField.1\", \"Wall.1\", "
             "\"Symmetry.1\", \"Forces.1\", \"Sections.1\" and \"Probe.1\"\n"},
    {"NoObjectName",
     Nothing(),
     {"apply", Model, "", "externalFlow"},
     1,
     Model + ": no top-level object \"\"; there are \"Solver.1\", \"Mesh.1\", \"FarField.1\", \"Wall.1\", "
             "\"Symmetry.1\", \"Forces.1\", \"Sections.1\" and \"Probe.1\"\n"},
    {"ObjectNoUtf8",
     Nothing(),
     {"show", Model, "\xFF\n"},
     1,
     Model + ": no top-level object \"\\xFF\\n\"; there are \"Solver.1\", \"Mesh.1\", \"FarField.1\", \"Wall.1\", "
             "\"Symmetry.1\", \"Forces.1\", \"Sections.1\" and \"Probe.1\"\n"},
    {"PathLeadsNowhere",
     Nothing(),
     {"show", Model, "Solver.1/fluids"},
     1,
     Model + ": \"Solver.1/fluids\" leads nowhere: No attribute fluids; did you mean \"fluid\"?\n"},
    {"PathThroughListOfTexts",
     Nothing(),
     {"show", "small.model.json", "Case.1/monitors/lift"},
     1,
     "small.model.json: \"Case.1/monitors/lift\" leads nowhere: \"monitors\" holds no objects that a path could lead "
     "on to\n"},
    {"ChoiceWithoutData",
     Nothing(),
     {"show", "flow.model.json", "Flow 2/turbulence/laminar"},
     1,
     "flow.model.json: \"Flow 2/turbulence/laminar\" leads nowhere: the choice \"laminar\" has no data object\n"},
    {"OptionalAttributeThatIsNotThere",
     Nothing(),
     {"explain", Model, "Solver.1/solutionMesh"},
     1,
     Model + ": \"Solver.1/solutionMesh\" leads nowhere: the attribute \"solutionMesh\" is optional, and this "
             "\"ExternalFlowSolver\" does not have it\n"},
    {"EntryLeadsNowhere",
     Nothing(),
     {"show", Model, "Mesh.1/zones/Zone.9"},
     1,
     Model + ": \"Mesh.1/zones/Zone.9\" leads nowhere: No matching object to Zone.9; did you mean \"Zone.1\"?\n"},
    {"EmptyEntryOnTheWay",
     Nothing(),
     {"show", "small.model.json", "Case.1/probes/Outlet"},
     1,
     "small.model.json: \"Case.1/probes/Outlet\" leads nowhere: a list on the way has an empty entry, and cannot be "
     "searched\n"},
    {"AttributeInPlaceOfObject",
     Nothing(),
     {"apply", Model, "Solver.1/iterations", "externalFlow"},
     1,
     Model + ": \"Solver.1/iterations\" is an attribute, no object\n"},
    {"ConfigurationLikeAnother",
     Nothing(),
     {"apply", Model, "Solver.1", "externlFlow", "-o", Model},
     1,
     "vyrcfd: no configuration \"externlFlow\"; did you mean \"externalFlow\"?\n"
     "failed call: GetConfigurationObject(iConfigName, configObjectJSON) in VYRCfdConfigurator::ApplyConfiguration, "
     "status 0x80004005\n"},
    {"NoDefaultManagement",
     Nothing(),
     {"apply", "small.model.json", "Mesh", "externalFlow", "-o", "small.model.json"},
     1,
     "small.model.json: \"Mesh\" has no default management, and cannot be configured\n"
     "assertion: spDefMgmt != NULL_var in VYRCfdConfigurator::ApplyConfiguration, status 0x80004005\n"},
    {"ItemFails",
     Nothing(),
     {"apply", Model, "Mesh.1", "externalFlow", "-o", Model},
     1,
     Model + ": \"externalFlow\" failed on \"Mesh.1\"\n"
             "\"externalFlow\", item 1, fails: samples/reffiles/VYRCfdApp/SolverConfigurations.json:6:9\n"
             "assertion: spParm in VYRCfdDefaultManagementAdp::SetCustomDefault, status 0x80004005\n"
             "failed call: spDefMgmt->SetCustomDefault(path, defaultValue) in VYRCfdConfigurator::ApplyConfiguration, "
             "status 0x80004005\n"},
};
INSTANTIATE_TEST_SUITE_P(Names, BadInputs, testing::ValuesIn(Names), NameOf);

const BadInput Outputs[] = {
    {"NoSuchFolder",
     Nothing(),
     {"apply", Model, "Solver.1", "externalFlow", "-o", "nowhere/out.model.json"},
     1,
     "nowhere/out.model.json: cannot be written: No such file or directory\n"},
    {"Folder",
     Nothing(),
     {"apply", Model, "Solver.1", "externalFlow", "-o", "samples"},
     1,
     "samples: is a folder, not a file\n"},
    // Not even the superuser makes files there.
    {"FolderThatTakesNone",
     Nothing(),
     {"apply", Model, "Solver.1", "externalFlow", "-o", "/proc/out.model.json"},
     1,
     "/proc/out.model.json: cannot be written: No such file or directory\n"},
    {"StandardOutput",
     Nothing(),
     {"apply", Model, "Solver.1", "externalFlow", "-o", "-"},
     2,
     "vyrcfd: --output: - is no file: standard output has the answer of the command; a file of that name is ./-; see "
     "vyrcfd apply --help\n"},
    {"StandardOutputOfPurge",
     Nothing(),
     {"purge", Model, "--yes", "-o", "-"},
     2,
     "vyrcfd: --output: - is no file: standard output has the answer of the command; a file of that name is ./-; see "
     "vyrcfd purge --help\n"},
    {"StandardOutputOfGraph",
     Nothing(),
     {"graph", "-o", "-"},
     2,
     "vyrcfd: --output: - is no file: standard output has the answer of the command; a file of that name is ./-; see "
     "vyrcfd graph --help\n"},
    {"FullDevice",
     Nothing(),
     {"apply", Model, "Solver.1", "externalFlow", "-o", "/dev/full"},
     1,
     "/dev/full: cannot be written: No space left on device\n"},
};
INSTANTIATE_TEST_SUITE_P(Outputs, BadInputs, testing::ValuesIn(Outputs), NameOf);

TEST_F(ToolTest, Installation_ThatIsNoFolder_IsToldInOneLine)
{
    const ToolRun run = RunTool({"list", "--installation", "nowhere"}, {m_folder.Path()});
    EXPECT_EQ(Outcome(run), Outcome(1, "nowhere: is no folder, so there is no installation\n"));
}
} // namespace
