/**
 * @file
 * The commands of the shell that make objects and entries, and take them away: new, insert, delete.
 */

#include "ShellTest.h"

namespace
{
class GoodEntryScripts : public ShellTest, public testing::WithParamInterface<ScriptRun>
{
};

TEST_P(GoodEntryScripts, PrintWhatTheCommandsTell_AndWriteNoFile)
{
    ExpectRun(GetParam());
}

const char Probe[] = "    + position: 0.5\n    + field: \"pressure\"\n";
const char GoneProbe[] = "    - position: 0.5\n    - field: \"pressure\"\n";

/// What default management has to say when a reference is taken out.
const char NoParameter[] =
    "note: assertion: spParm in VYRCfdDefaultManagementAdp::isConfigured, status 0x80004005\n"
    "note: assertion: defaultParm in VYRCfdDefaultManagementAdp::GetDefault, status 0x80004005\n";

const ScriptRun NewScripts[] = {
    {"New", Small, "new Probe Inlet\nget Inlet/position\n", std::string("Inlet  Probe  new\n") + Probe + "0.5\n", ""},
    {"NewWithoutName_TakesTheFirstFreeNumber", Small, "new Mesh\nnew Mesh Mesh.2\nnew Mesh\nls\n",
     "Mesh.1  Mesh  new\n"
     "Mesh.2  Mesh  new\n"
     "Mesh.3  Mesh  new\n"
     "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
     "Mesh  Mesh  name \"Mesh/fine\"\n"
     "5  VYRCfdConfigItem  name \"ConfigItem\"\n"
     "list  Case\n"
     "Mesh.1  Mesh\n"
     "Mesh.2  Mesh\n"
     "Mesh.3  Mesh\n",
     ""},
    {"NewOfANameThatIsThere", Small, "new Mesh Cavity\n", "7  Mesh  new\n",
     "note: an object is called \"Cavity\" already; the name means that one\n"},
    {"NewOfAManagedChoice", Flow, "new SolverChoice S\nprohibit S gmres\n",
     "S  SolverChoice  new\n"
     "    + value: \"gmres\"\n"
     "    + choices: [\"direct\", \"conjugate gradient\", \"gmres\"]\n"
     "S  SolverChoice\n"
     "    value: \"gmres\" -> \"direct\"\n"
     "    choices: [\"direct\", \"conjugate gradient\", \"gmres\"] -> [\"direct\", \"conjugate gradient\"]\n",
     ""},
};
INSTANTIATE_TEST_SUITE_P(New, GoodEntryScripts, testing::ValuesIn(NewScripts),
                         [](const auto& iInfo) { return iInfo.param.name; });

const ScriptRun InsertScripts[] = {
    {"InsertText", Small, "insert Case.1/monitors first 1\ninsert Case.1/monitors \"the last\"\n",
     "Case.1  Case\n    monitors: [\"lift\", \"drag \\\"total\\\"\"] -> [\"first\", \"lift\", \"drag \\\"total\\\"\"], "
     "now set\n"
     "Case.1  Case\n    monitors: [\"first\", \"lift\", \"drag \\\"total\\\"\"] -> "
     "[\"first\", \"lift\", \"drag \\\"total\\\"\", \"the last\"]\n",
     ""},
    {"InsertNumber_LosesCustomDefaults_AndSaysSo", Small,
     "default Case.1/iterations 70\ninsert Case.1/weights 0.1 2\ndefault Case.1/iterations\n",
     "Case.1  Case\n    iterations: 500 -> 70\n"
     "Case.1  Case\n    weights: [1, 0.25] -> [1, 0.1, 0.25], now set\n"
     "500 (start-up)\n",
     "note: custom defaults are now those that the records give\n"},
    {"InsertEnumerationText", Small, "insert Case.1/order second\n",
     "Case.1  Case\n    order: [second, first] -> [second, first, second], now set\n",
     "note: custom defaults are now those that the records give\n"},
    {"InsertReference", Small, "insert Case.1/watched Case.1/probe 1\n",
     "Case.1  Case\n    watched: [Mesh, (empty)] -> [Case.1/probe, Mesh, (empty)], now set\n", ""},
    {"InsertPart_TakesItFromWhereItStands", Small, "insert list/probes Case.1/probe\nget Case.1/probe\n",
     "Case.1  Case\n    probe: Case.1/probe -> (empty)\n"
     "list  Case\n    probes: [] -> [list/probes/probe], now set\n"
     "(empty)\n",
     ""},
};
INSTANTIATE_TEST_SUITE_P(Insert, GoodEntryScripts, testing::ValuesIn(InsertScripts),
                         [](const auto& iInfo) { return iInfo.param.name; });

const ScriptRun DeleteScripts[] = {
    {"DeleteObject", Flow, "new WallLaw W\ndelete W\nls\n",
     "W  WallLaw  new\n    + roughness: 0\n"
     "W  WallLaw  gone\n    - roughness: 0\n"
     "Flow.1  Flow\nFlow 2  Flow\nFlow 3  Flow\n",
     ""},
    {"DeleteObject_EmptiesWhatReferredToIt", Small, "delete Mesh\n",
     "Case.1  Case\n    mesh: Mesh -> (empty)\n    watched: [Mesh, (empty)] -> [(empty)], now set\n"
     "Mesh  Mesh  gone\n    - cells: 4096\n",
     NoParameter},
    {"DeletePart", Small, "set list/backup Case.1/probe\ndelete Case.1/probe\nget list/backup\n",
     "list  Case\n    backup: (empty) -> Case.1/probe, now set\n"
     "Case.1  Case\n    probe: Case.1/probe -> (empty)\n"
     "list  Case\n    backup: Case.1/probe -> (empty), no longer set\n"
     "Case.1/probe  Probe  gone\n    - position: 0.25\n    - field: \"pressure\"\n"
     "(empty)\n",
     // The second object has no records to ask.
     std::string(NoParameter).substr(std::string(NoParameter).find('\n') + 1) + NoParameter},
    {"DeleteReference_LeavesTheObject", Small, "delete Case.1/mesh\nget Mesh/cells\n",
     "Case.1  Case\n    mesh: Mesh -> (empty)\n4096\n", NoParameter},
    {"DeleteEntryOfValues", Small, "delete Case.1/weights 2\ndelete Case.1/monitors 1\n",
     "Case.1  Case\n    weights: [1, 0.25] -> [1], now set\n"
     "Case.1  Case\n    monitors: [\"lift\", \"drag \\\"total\\\"\"] -> [\"drag \\\"total\\\"\"], now set\n",
     ""},
    {"DeleteEmptyEntry_ThenAPartByItsPath", Small, "delete Case.1/probes 2\ndelete Case.1/probes/Outlet\n",
     "Case.1  Case\n    probes: [Case.1/probes/Probe.1, (empty), Case.1/probes/Outlet] -> "
     "[Case.1/probes/Probe.1, Case.1/probes/Outlet], now set\n"
     "Case.1  Case\n    probes: [Case.1/probes/Probe.1, Case.1/probes/Outlet] -> [Case.1/probes/Probe.1]\n" +
         std::string("Case.1/probes/Outlet  Probe  gone\n") + GoneProbe,
     ""},
    {"DeleteEntryOfReferences_ByItsPath", Small, "delete Case.1/watched 2\ndelete Case.1/watched/1\nget Mesh/cells\n",
     "Case.1  Case\n    watched: [Mesh, (empty)] -> [Mesh], now set\n"
     "Case.1  Case\n    watched: [Mesh] -> []\n4096\n",
     ""},
    {"DeleteOneOfEqualReferences_IsTheOneAtThePosition", Small,
     "insert list/watched Case.1\ninsert list/watched Mesh\ninsert list/watched Case.1\ndelete list/watched/3\n",
     "list  Case\n    watched: [] -> [Case.1], now set\n"
     "list  Case\n    watched: [Case.1] -> [Case.1, Mesh]\n"
     "list  Case\n    watched: [Case.1, Mesh] -> [Case.1, Mesh, Case.1]\n"
     "list  Case\n    watched: [Case.1, Mesh, Case.1] -> [Case.1, Mesh]\n",
     ""},
    {"DeleteRecord", Small, "delete Case.1/defaultManagement/configuration/1\nrecords Case.1\n",
     "Case.1  Case\n    - record tolerance: default \"1e-8\"\n"
     "1. probe: configuration \"watchfulProbe\", on condition \"iterations>100\"\n",
     ""},
    {"DeleteThroughTheChoice", Flow, "delete Flow.1/turbulence/kOmega\n",
     "Flow.1/turbulence  TurbulenceChoice\n    Data: Flow.1/turbulence/Data -> (empty)\n"
     "Flow.1/turbulence/Data  KOmegaModel  gone\n    - intensity: 0.1\n"
     "Flow.1/turbulence/Data/wall  WallLaw  gone\n    - roughness: 0\n",
     ""},
};
INSTANTIATE_TEST_SUITE_P(Delete, GoodEntryScripts, testing::ValuesIn(DeleteScripts),
                         [](const auto& iInfo) { return iInfo.param.name; });

class FailingEntryScripts : public ShellTest, public testing::WithParamInterface<FailingScript>
{
};

TEST_P(FailingEntryScripts, TellTheLine_AndChangeNothing)
{
    ExpectFailure(GetParam());
}

const FailingScript FailingEntryCases[] = {
    {"NewWithoutType", Small, "new", "usage: new TYPE [NAME]"},
    {"NewOfNoType", Small, "new Prob", "no feature type \"Prob\"; did you mean \"Probe\"?"},
    {"NewWithEmptyName", Small, "new Probe \"\"", "\"\" is no name"},
    {"InsertIntoNoList", Small, "insert Case.1/title a", "\"Case.1/title\" is a string, no list"},
    {"InsertIntoNothing", Small, "insert Case.1/monitor a",
     "\"Case.1/monitor\" leads nowhere: No attribute monitor; did you mean \"monitors\"?"},
    {"InsertIntoObject", Small, "insert Case.1 a", "\"Case.1\" is an object, no attribute"},
    {"InsertTooFarBehind", Small, "insert Case.1/monitors a 4",
     "\"4\" is no position from 1 to 3 in \"Case.1/monitors\""},
    {"InsertAtNoPosition", Small, "insert Case.1/monitors a 1x",
     "\"1x\" is no position from 1 to 3 in \"Case.1/monitors\""},
    {"InsertOfNoNumber", Small, "insert Case.1/weights half", "\"Case.1/weights\": \"half\" is no real"},
    {"InsertOfTooLargeNumber", Small, "insert Case.1/weights 1e999", "\"Case.1/weights\": \"1e999\" is no real"},
    {"InsertOfNoText", Small, "insert Case.1/order secnd",
     "\"Case.1/order\": \"secnd\" is none of \"first\", \"second\"; did you mean \"second\"?"},
    {"InsertOfNoObject", Small, "insert Case.1/watched Cavty",
     "no top-level object \"Cavty\"; did you mean \"Cavity\"?"},
    {"InsertOfAttribute", Small, "insert Case.1/watched Case.1/title", "\"Case.1/title\" is an attribute, no object"},
    {"InsertIntoItself", Small, "insert Case.1/probes Case.1",
     "\"Case.1/probes\" did not take the object, which must not come to stand inside of itself"},
    {"InsertOfDefaultManagement", Small, "insert Case.1/probes list/defaultManagement",
     "\"list/defaultManagement\" is a part that its object needs"},
    {"DeleteOfNothing", Small, "delete Cavty", "no top-level object \"Cavty\"; did you mean \"Cavity\"?"},
    {"DeleteOfValue", Small, "delete Case.1/title",
     "\"Case.1/title\" is a value, which unset puts back on its default"},
    {"DeleteOfList", Small, "delete Case.1/monitors",
     "\"Case.1/monitors\" is a list: name the position of an entry, as in delete Case.1/monitors 1"},
    {"DeleteOfEmptyReference", Small, "delete Case.1/backup", "\"Case.1/backup\" is empty"},
    {"DeleteOfNoEntry", Small, "delete Case.1/monitors 3", "\"3\" is no position from 1 to 2 in \"Case.1/monitors\""},
    {"DeleteOfEntryOfNothing", Small, "delete list/monitors 1", "\"list/monitors\" has no entries"},
    {"DeleteAtPositionInNoList", Small, "delete Case.1/mesh 1", "\"Case.1/mesh\" is a reference, no list"},
    {"DeleteThroughEmptyEntry", Small, "delete Case.1/probes/Outlet",
     "\"Case.1/probes/Outlet\" leads nowhere: a list on the way has an empty entry, and cannot be searched"},
    {"DeleteOfDefaultManagement", Small, "delete Case.1/defaultManagement",
     "\"Case.1/defaultManagement\" is a part that its object needs"},
};
INSTANTIATE_TEST_SUITE_P(Entries, FailingEntryScripts, testing::ValuesIn(FailingEntryCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(ShellTest, Insert_WritesEveryKindOfNumberWhereItBelongs)
{
    Write("Lists.catalog.json", R"({"catalog": "Lists", "uses": ["VYRCfdBase"], "types": [
        {"name": "Lists", "attributes": [
            {"name": "lengths", "kind": "list", "of": "real", "unit": "m"},
            {"name": "counts", "kind": "list", "of": "integer"},
            {"name": "flags", "kind": "list", "of": "boolean"},
            {"name": "maybe~a", "kind": "list", "of": "real", "optional": true},
            {"name": "parts", "kind": "list", "of": "component"}]}]})");
    Write("lists.model.json", R"({"model": 1, "catalogs": ["Lists"], "objects": [
        {"type": "Lists", "name": "First"},
        {"type": "Lists", "name": "L", "values": {"parts": [null,
            {"type": "Lists", "name": "P", "added": {"maybe~a": {"kind": "list", "value": [0.1, 1e300]}}}]}}]})");
    const ToolRun run = Script("lists.model.json", "insert L/lengths \"5 mm\"\ninsert L/lengths -0.30000000000000004\n"
                                                   "insert L/counts -7\ninsert L/flags TRUE\ninsert L/flags 0 1\n"
                                                   "delete L/parts 1\ninsert L/parts/P/maybe~a 2 2\n"
                                                   "get L/lengths\nget L/counts\nget L/flags\nget L/parts/P/maybe~a\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_NE(run.output.find("\n[0.005, -0.30000000000000004]\n[-7]\n[false, true]\n[0.1, 2, 1e+300]\n"),
              std::string::npos)
        << run.output;
    EXPECT_EQ(Outcome(Script("lists.model.json", "insert L/lengths \"5 kg\"\n")),
              Outcome(1, "stdin:1: \"L/lengths\": \"5 kg\" is no real\n"));
    EXPECT_EQ(Outcome(Script("lists.model.json", "insert L/counts 1.5\n")),
              Outcome(1, "stdin:1: \"L/counts\": \"1.5\" is no integer\n"));
    EXPECT_EQ(Outcome(Script("lists.model.json", "insert First/maybe~a 1\n")),
              Outcome(1, "stdin:1: \"First/maybe~a\" leads nowhere: the attribute \"maybe~a\" is optional, and this "
                         "\"Lists\" does not have it\n"));
}
} // namespace
