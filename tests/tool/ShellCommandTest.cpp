/**
 * @file
 * The commands of the shell one by one: what each prints, and how it fails.
 */

#include <sstream>

#include "ShellTest.h"

namespace
{
class GoodScripts : public ShellTest, public testing::WithParamInterface<ScriptRun>
{
};

TEST_P(GoodScripts, PrintWhatTheCommandsTell_AndWriteNoFile)
{
    ExpectRun(GetParam());
}

const char UnequalLists[] =
    "note: assertion: choices.size() == startups.size() in VYRCfdChoiceInstanceAdp::Update, status 0x80004005\n";

const ScriptRun ObjectScripts[] = {
    {"ListModel", Small, "ls\n",
     "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
     "Mesh  Mesh  name \"Mesh/fine\"\n"
     "5  VYRCfdConfigItem  name \"ConfigItem\"\n"
     "list  Case\n",
     ""},
    {"ListObject", Flow, "ls Flow.1\n",
     "Flow.1  Flow\n"
     "    speed  real  10    default 10 (start-up)\n"
     "    turbulence  TurbulenceChoice\n"
     "    solver  SolverChoice\n"
     "    energy  VYRCfdChoice\n",
     ""},
    {"ListChoice", Flow, "ls Flow.1/turbulence\n",
     "Flow.1/turbulence  TurbulenceChoice  display \"Turbulence model\"\n"
     "    value  string  \"kOmega\"  set  default \"laminar\" (start-up)\n"
     "    choices\n"
     "          \"laminar\"                default\n"
     "        > \"kOmega\"   KOmegaModel\n"
     "          \"spalart\"  SpalartModel\n"
     "    Data  KOmegaModel\n",
     ""},
    {"ListAttribute", Small, "ls Case.1/monitors\n",
     "Case.1  Case  alias \"Cavity\"  identifier \"C-1\"\n"
     "    monitors  list of string  [\"lift\", \"drag \\\"total\\\"\"]\n",
     ""},
    {"Records", Small, "records Case.1\nrecords Mesh\n",
     "1. tolerance: default \"1e-8\"\n"
     "2. probe: configuration \"watchfulProbe\", on condition \"iterations>100\"\n"
     "No records.\n",
     ""},
    {"Test", Flow,
     "test Flow.1 speed>9\ntest Flow.1 speed>10\ntest Flow.1/turbulence value==kOmega\ntest "
     "Flow.1/turbulence/value==laminar\n"
     "test \"Flow 2/speed>=10\"\ntest Flow.1 nothing==1\n",
     "true\nfalse\ntrue\nfalse\ntrue\nfalse\n", ""},
    {"Apply", Flow, "apply \"Flow 3/solver\" directly\n",
     "Flow 3/solver  SolverChoice\n"
     "    value: \"gmres\" -> \"direct\"\n"
     "    choices: [\"direct\", \"conjugate gradient\", \"gmres\"] -> [\"gmres\", \"direct\"]\n"
     "    Data: Flow 3/solver/Data -> (empty)\n"
     "    + record value: default \"direct\"\n"
     "Flow 3/solver/Data  WallLaw  gone\n"
     "    - roughness: 0\n",
     ""},
    {"ApplyOfNoItems", Small, "apply Mesh nothing\n", "", "note: \"nothing\" has no items\n"},
    {"ApplyPrintsReports_AsNotes", Flow, "apply \"Flow 2/turbulence\" bySpalart\n",
     "Flow 2/turbulence  TurbulenceChoice\n"
     "    value: \"laminar\" -> \"spalart\"\n"
     "    choices: [\"laminar\", \"kOmega\", \"spalart\"] -> [\"spalart\", \"kOmega\"]\n"
     "    Startups: [\"\", \"KOmegaModel\", \"SpalartModel\"] -> [\"SpalartModel\", \"KOmegaModel\"]\n"
     "    display: \"Turbulence model\" -> \"Turbulence\"\n"
     "    Data: (empty) -> Flow 2/turbulence/Data\n"
     "    + record value: default \"spalart\"\n"
     "    + record Data: configuration \"ratioOfFour\", on condition \"value==spalart\"\n"
     "Flow 2/turbulence/Data  SpalartModel  new\n"
     "    + ratio: 4\n"
     "    + record ratio: default \"4\"\n"
     "Flow 2/turbulence/Data/wall  WallLaw  new\n"
     "    + roughness: 0\n",
     UnequalLists},
};
INSTANTIATE_TEST_SUITE_P(Objects, GoodScripts, testing::ValuesIn(ObjectScripts),
                         [](const auto& iInfo) { return iInfo.param.name; });

const ScriptRun AttributeScripts[] = {
    {"Get", Small,
     "get Case.1/title\nget Case.1/note\nget Case.1/relaxation\nget Case.1/scheme\nget Case.1/monitors\n"
     "get Case.1/spare\nget Case.1/mesh\nget Case.1/backup\nget Case.1/probe/position\n"
     "get Case.1/defaultManagement/relaxation_isset\n",
     "(unset)\n\"\"\n0.5\ncentral\n[\"lift\", \"drag \\\"total\\\"\"]\ncolumn [1.5, 2.5]\nMesh\n(empty)\n0.25\ntrue\n",
     ""},
    {"GetThroughChoice", Flow, "get Flow.1/turbulence/kOmega/intensity\n", "0.1\n", ""},
    {"Set", Small,
     "set Case.1/relaxation 0.25\nset Case.1/iterations 20\nset Case.1/scheme upwind\nset Case.1/steady false\n"
     "set Case.1/author \"\"\nset Mesh/cells 1\n",
     "Case.1  Case\n    relaxation: 0.5 -> 0.25\n"
     "Case.1  Case\n    iterations: 500 -> 20, now set\n"
     "Case.1  Case\n    scheme: central -> upwind, now set\n"
     "Case.1  Case\n    steady: (unset) -> false, now set\n"
     "Case.1  Case\n    author: \"somebody\" -> \"\", now set\n"
     "Mesh  Mesh\n    cells: 4096 -> 1\n",
     ""},
    {"SetToTheSame", Small, "set Case.1/relaxation 0.5\n", "", ""},
    {"SetOfAChoice_BringsItsData", Flow, "set Flow.1/turbulence/value spalart\n",
     "Flow.1/turbulence  TurbulenceChoice\n"
     "    value: \"kOmega\" -> \"spalart\"\n"
     "Flow.1/turbulence/Data\n"
     "    - KOmegaModel\n"
     "    + SpalartModel\n    - intensity: 0.1\n    + ratio: 3\n"
     "Flow.1/turbulence/Data/wall  WallLaw  made anew\n",
     ""},
    {"SetOfAChoice_OutsideItsList_IsRepaired", Flow,
     "set \"Flow 2/turbulence/value\" unheardOf\nget \"Flow 2/turbulence/value\"\n", "\"laminar\"\n", ""},
    {"Unset", Small, "unset Case.1/relaxation\nunset Case.1/tolerance\n",
     "Case.1  Case\n    relaxation: 0.5 -> 0.7, no longer set\n", ""},
    {"UnsetOfAChoice", Flow, "unset Flow.1/turbulence/value\n",
     "Flow.1/turbulence  TurbulenceChoice\n"
     "    value: \"kOmega\" -> \"laminar\", no longer set\n"
     "    Data: Flow.1/turbulence/Data -> (empty)\n"
     "Flow.1/turbulence/Data  KOmegaModel  gone\n"
     "    - intensity: 0.1\n"
     "Flow.1/turbulence/Data/wall  WallLaw  gone\n"
     "    - roughness: 0\n",
     ""},
    {"DefaultShown", Small,
     "default Case.1/author\ndefault Case.1/tolerance\ndefault Case.1/title\ndefault Case.1/scheme\ndefault "
     "Case.1/monitors\n",
     "\"nobody\" (start-up)\n1e-08 (record)\n(none)\nupwind (start-up)\n(none)\n", ""},
    {"DefaultGiven", Small,
     "default Case.1/iterations 70\ndefault Case.1/iterations\ndefault Case.1/relaxation 0.1\ndefault "
     "Case.1/relaxation\n"
     "unset Case.1/relaxation\n",
     "Case.1  Case\n    iterations: 500 -> 70\n"
     "70 (custom default)\n"
     "0.1 (custom default)\n"
     "Case.1  Case\n    relaxation: 0.5 -> 0.1, no longer set\n",
     ""},
    {"CustomDefaultExplained", Small, "default Case.1/tolerance 1e-5\nexplain Case.1/tolerance\n",
     "Case.1  Case\n    tolerance: 1e-08 -> 1e-05\n"
     "Case.1/tolerance  real\n"
     "    value           1e-05\n"
     "    set             no\n"
     "    auto            no flag\n"
     "    comes from      its default, by the custom default\n"
     "\n"
     "  > custom default  1e-05\n"
     "    record          1e-08, passed over  (1. tolerance: default \"1e-8\")\n"
     "                        cavity, item 6  samples/reffiles/VYRCfdApp/conditionsConfig_Flow.json:11:9\n"
     "    start-up        1e-06  ([Case])\n"
     "                        declared by Case in the catalog Small  Small.catalog.json:27:9\n"
     "                        value given by Case in the catalog Small  Small.catalog.json:27:59\n"
     "\n"
     "    after unset     1e-05, by the custom default\n",
     ""},
    {"SetValueAboveACustomDefaultExplained", Small, "default Case.1/relaxation 0.1\nexplain Case.1/relaxation\n",
     "Case.1/relaxation  real\n"
     "    value           0.5\n"
     "    set             yes\n"
     "    auto            no flag\n"
     "    comes from      set on purpose\n"
     "\n"
     "  > custom default  0.1\n"
     "    record          none\n"
     "    start-up        0.7  ([Case])\n"
     "                        declared by Case in the catalog Small  Small.catalog.json:26:9\n"
     "                        value given by Case in the catalog Small  Small.catalog.json:26:60\n"
     "\n"
     "    after unset     0.1, by the custom default\n",
     ""},
    {"NoCustomDefaultExplained", Small, "explain Case.1/scheme\n",
     "Case.1/scheme  enumeration\n"
     "    value           central\n"
     "    set             no\n"
     "    auto            no flag\n"
     "    comes from      none of its defaults, and it is not set\n"
     "\n"
     "    custom default  none\n"
     "    record          none\n"
     "  > start-up        upwind  ([Case])\n"
     "                        declared by Case in the catalog Small  Small.catalog.json:29:9\n"
     "                        value given by Case in the catalog Small  Small.catalog.json:29:96\n"
     "\n"
     "    after unset     upwind, by the start-up\n",
     ""},
    {"DefaultOfAChoiceGiven", Flow, "default \"Flow 2/turbulence/value\" kOmega\ndefault \"Flow 2/turbulence/value\"\n",
     "Flow 2/turbulence  TurbulenceChoice\n"
     "    value: \"laminar\" -> \"kOmega\"\n"
     "    Data: (empty) -> Flow 2/turbulence/Data\n"
     "Flow 2/turbulence/Data  KOmegaModel  new\n"
     "    + intensity: 0.05\n"
     "Flow 2/turbulence/Data/wall  WallLaw  new\n"
     "    + roughness: 0\n"
     "\"kOmega\" (custom default)\n",
     ""},
    {"DefaultManagement", Small,
     "get Case.1/defaultManagement\nisset Case.1/defaultManagement\nauto Case.1/defaultManagement\n"
     "default Case.1/defaultManagement\n",
     "Case.1/defaultManagement\n(none)\n(none)\n(none)\n", ""},
    {"SetOfObjects", Small, "set Case.1/backup Case.1/probe\nset Case.1/spare Mesh\n",
     "Case.1  Case\n    backup: (empty) -> Case.1/probe, now set\n"
     "Case.1  Case\n    spare: column [1.5, 2.5] -> Case.1/spare, now set\n    mesh: Mesh -> Case.1/spare\n"
     "    watched: [Mesh, (empty)] -> [Case.1/spare, (empty)]\n",
     ""},
    {"IsSet", Small,
     "isset Case.1/relaxation\nisset Case.1/scheme\nisset Case.1/title\nset Case.1/title a\nisset Case.1/title\n"
     "unset Case.1/title\nisset Case.1/title\n",
     "true\nfalse\nfalse\nCase.1  Case\n    title: (unset) -> \"a\", now set\ntrue\n"
     "Case.1  Case\n    title: \"a\" -> (unset), no longer set\nfalse\n",
     ""},
    {"Auto", Small,
     "auto Case.1/note\nauto Case.1/iterations\nauto Case.1/author\nauto Case.1/author on\nauto Case.1/author\n"
     "auto Case.1/author on\nauto Case.1/author off\nauto Case.1/author\n",
     "on\noff\n(none)\n"
     "Case.1  Case\n    author: now auto\n"
     "on\n"
     // The first time only makes the flag.
     "Case.1  Case\n    author: \"somebody\" -> \"nobody\"\n"
     "Case.1  Case\n    author: no longer auto\n"
     "off\n",
     ""},
};
INSTANTIATE_TEST_SUITE_P(Attributes, GoodScripts, testing::ValuesIn(AttributeScripts),
                         [](const auto& iInfo) { return iInfo.param.name; });

const ScriptRun ChoiceScripts[] = {
    {"Choices", Flow, "choices Flow.1/turbulence\nchoices Flow.1/solver\n",
     "value    \"kOmega\"\n"
     "default  \"laminar\" (start-up)\n"
     "display  \"Turbulence model\"\n"
     "data     Flow.1/turbulence/Data\n"
     "choices\n"
     "      \"laminar\"                default\n"
     "    > \"kOmega\"   KOmegaModel\n"
     "      \"spalart\"  SpalartModel\n"
     "value    \"multigrid\"\n"
     "default  \"gmres\" (start-up)\n"
     "data     (empty)\n"
     "choices  (the value is none of them)\n"
     "      \"direct\"\n"
     "      \"gmres\"     default\n",
     ""},
    {"Choose", Flow, "choose \"Flow 2/solver\" \"conjugate gradient\"\nchoose \"Flow 2/solver\" gmres\n",
     "Flow 2/solver  SolverChoice\n    value: \"gmres\" -> \"conjugate gradient\", now set\n"
     "Flow 2/solver  SolverChoice\n    value: \"conjugate gradient\" -> \"gmres\"\n",
     ""},
    {"ProhibitAndAllow", Flow,
     "prohibit \"Flow 2/solver\" gmres direct\nallow \"Flow 2/solver\" direct\nprohibit \"Flow 2/solver\" gmres\n",
     "Flow 2/solver  SolverChoice\n"
     "    value: \"gmres\" -> \"conjugate gradient\"\n"
     "    choices: [\"direct\", \"conjugate gradient\", \"gmres\"] -> [\"conjugate gradient\"]\n"
     "Flow 2/solver  SolverChoice\n"
     "    choices: [\"conjugate gradient\"] -> [\"direct\", \"conjugate gradient\"]\n",
     "note: \"gmres\" is not offered, and passed over\n"},
    {"ProhibitWithStartups", Flow, "prohibit Flow.1/turbulence kOmega spelart\n",
     "Flow.1/turbulence  TurbulenceChoice\n"
     "    value: \"kOmega\" -> \"laminar\", no longer set\n"
     "    choices: [\"laminar\", \"kOmega\", \"spalart\"] -> [\"laminar\", \"spalart\"]\n"
     "    Startups: [\"\", \"KOmegaModel\", \"SpalartModel\"] -> [\"\", \"SpalartModel\"]\n"
     "    Data: Flow.1/turbulence/Data -> (empty)\n"
     "Flow.1/turbulence/Data  KOmegaModel  gone\n"
     "    - intensity: 0.1\n"
     "Flow.1/turbulence/Data/wall  WallLaw  gone\n"
     "    - roughness: 0\n",
     "note: \"spelart\" is not offered, and passed over; did you mean \"spalart\"?\n"},
    {"ProhibitAll", Flow, "prohibit Flow.1/solver direct gmres\n",
     "Flow.1/solver  SolverChoice\n    choices: [\"direct\", \"gmres\"] -> []\n",
     "note: assertion: choices.size() > 0 in VYRCfdChoiceInstanceAdp::Update, status 0x80004005\n"},
    {"AllowWithStartups_WarnsAndWritesTheStartups", Flow,
     "prohibit Flow.1/turbulence spalart\nallow Flow.1/turbulence spalart\n",
     "Flow.1/turbulence  TurbulenceChoice\n"
     "    choices: [\"laminar\", \"kOmega\", \"spalart\"] -> [\"laminar\", \"kOmega\"]\n"
     "    Startups: [\"\", \"KOmegaModel\", \"SpalartModel\"] -> [\"\", \"KOmegaModel\"]\n"
     "Flow.1/turbulence  TurbulenceChoice\n"
     "    choices: [\"laminar\", \"kOmega\"] -> [\"\", \"KOmegaModel\", \"SpalartModel\"]\n",
     std::string("warning: \"Flow.1/turbulence\" is declared with startups: where its choices change, the names of the "
                 "startups take their place\n") +
         UnequalLists},
    {"AllowOfUndeclared", Flow, "allow \"Flow 2/solver\" multigrid\n", "",
     "note: \"multigrid\" is not declared, and passed over\n"},
    {"Reset", Flow, "reset Flow.1/solver\n",
     "Flow.1/solver  SolverChoice\n"
     "    value: \"multigrid\" -> \"gmres\"\n"
     "    choices: [\"direct\", \"gmres\"] -> [\"direct\", \"conjugate gradient\", \"gmres\"]\n",
     ""},
    {"ResetKeepingTheValue_MakesItTheDefault", Flow,
     "set \"Flow 2/solver/value\" direct\nreset \"Flow 2/solver\" keep\ndefault \"Flow 2/solver/value\"\nreset \"Flow "
     "2/solver\"\n"
     "default \"Flow 2/solver/value\"\n",
     "Flow 2/solver  SolverChoice\n    value: \"gmres\" -> \"direct\", now set\n"
     "\"direct\" (custom default)\n"
     "\"gmres\" (custom default)\n",
     ""},
};
INSTANTIATE_TEST_SUITE_P(Choices, GoodScripts, testing::ValuesIn(ChoiceScripts),
                         [](const auto& iInfo) { return iInfo.param.name; });

const ScriptRun SessionScripts[] = {
    {"ErrorsOfNothing", Flow, "errors\n", "No reports.\n", ""},
    {"Errors", Flow, "prohibit Flow.1/solver direct gmres\nget Flow.1/speed\nerrors\n",
     "Flow.1/solver  SolverChoice\n    choices: [\"direct\", \"gmres\"] -> []\n"
     "10\n"
     "assertion: choices.size() > 0 in VYRCfdChoiceInstanceAdp::Update, status 0x80004005\n",
     "note: assertion: choices.size() > 0 in VYRCfdChoiceInstanceAdp::Update, status 0x80004005\n"},
    {"HelpOfOne", Flow, "help auto\nhelp get\n",
     "auto PATH [on|off]\n"
     "    the auto flag of an attribute; with on or off, writes it\n"
     "    The first time only makes the flag; later, on also puts the attribute back on its default.\n"
     "Example: auto Solver.1/iterations on\n"
     "get PATH\n"
     "    the value of an attribute\n"
     "Example: get Solver.1/iterations\n",
     ""},
    {"Quit", Flow, "quit\nget nothing\n", "", ""},
    {"Exit", Flow, "exit\nget nothing\n", "", ""},
};
INSTANTIATE_TEST_SUITE_P(Session, GoodScripts, testing::ValuesIn(SessionScripts),
                         [](const auto& iInfo) { return iInfo.param.name; });

class FailingScripts : public ShellTest, public testing::WithParamInterface<FailingScript>
{
};

TEST_P(FailingScripts, TellTheLine_AndChangeNothing)
{
    ExpectFailure(GetParam());
}

const FailingScript FailingCases[] = {
    {"UnknownCommand", Small, "lst", "no command \"lst\"; did you mean \"ls\"?"},
    {"UnknownCommandLikeNone", Small, "reticulate", "no command \"reticulate\""},
    {"TooFewArguments", Small, "set Case.1/title", "usage: set PATH VALUE"},
    {"TooManyArguments", Small, "ls Case.1 Mesh", "usage: ls [PATH]"},
    {"ValueOfSeveralWords", Small, "set Case.1/relaxation 3000 rpm",
     "usage: set PATH VALUE; what has blanks in it stands in double quotes, as \"3000 rpm\""},
    {"ConditionOfSeveralWords", Small, "test Case.1 iterations > 100",
     "usage: test [PATH] CONDITION; what has blanks in it stands in double quotes, as \"iterations > 100\""},
    {"ExplainedObject", Small, "explain Case.1", "\"Case.1\" is an object, no attribute"},
    {"ExplainedDefaultManagement", Small, "explain Case.1/defaultManagement",
     "\"Case.1/defaultManagement\" holds the flags and the records of attributes, and has no default of its own"},
    {"RepeatedArgumentMissing", Flow, "prohibit Flow.1/solver", "usage: prohibit PATH CHOICE..."},
    {"ListOfNothing", Small, "ls Case.2", "no top-level object \"Case.2\"; did you mean \"Case.1\"?"},
    {"RecordsOfAttribute", Small, "records Case.1/title", "\"Case.1/title\" is an attribute, no object"},
    {"IntegerWithAFraction", Small, "set Case.1/iterations 2.5", "\"Case.1/iterations\": \"2.5\" is no integer"},
    {"IntegerWithAnExponent", Small, "set Case.1/iterations 1e3", "\"Case.1/iterations\": \"1e3\" is no integer"},
    {"DefaultWithTextBehind", Small, "default Case.1/iterations 7xyz", "\"Case.1/iterations\": \"7xyz\" is no integer"},
    {"TestOfNoCondition", Small, "test Case.1 title", "Bad condition: title"},
    {"TestWithoutObject", Small, "test iterations>5",
     "no top-level object \"iterations>5\"; there are \"ConfigItem\", \"Case.1\", \"Mesh\" and \"list\""},
    {"ApplyOfNothing", Flow, "apply Flow.1 turbulents",
     "no configuration \"turbulents\"; did you mean \"turbulent\"?\n"
     "failed call: GetConfigurationObject(iConfigName, configObjectJSON) in VYRCfdConfigurator::ApplyConfiguration, "
     "status 0x80004005"},
    {"ApplyThatIsFatal", Small, "apply Case.1 intoGap",
     "\"intoGap\" failed on \"Case.1\", fatally: unexpected null pointer"},
    {"GetOfObject", Small, "get Case.1", "\"Case.1\" is an object, no attribute"},
    {"GetOfEntry", Small, "get Case.1/defaultManagement/configuration/1",
     "\"Case.1/defaultManagement/configuration/1\" is an object, no attribute"},
    {"GetOfNothing", Small, "get Case.1/tilte",
     "\"Case.1/tilte\" leads nowhere: No attribute tilte; did you mean \"title\"?"},
    {"SetOfWrongReal", Small, "set Case.1/relaxation half", "\"Case.1/relaxation\": \"half\" is no real"},
    {"SetOfWrongInteger", Small, "set Case.1/iterations many", "\"Case.1/iterations\": \"many\" is no integer"},
    {"SetOfWrongBoolean", Small, "set Case.1/steady yes", "\"Case.1/steady\": \"yes\" is neither true nor false"},
    {"SetOfWrongEnumeration", Small, "set Case.1/scheme Upwind",
     "\"Case.1/scheme\": \"Upwind\" is none of \"upwind\", \"central\"; did you mean \"upwind\"?"},
    {"SetOfList", Small, "set Case.1/monitors lift",
     "\"Case.1/monitors\" is a list of string, which is changed by insert and delete"},
    {"SetOfReference", Small, "set Case.1/mesh Mash", "no top-level object \"Mash\"; did you mean \"Mesh\"?"},
    {"SetOfReferenceToAttribute", Small, "set Case.1/mesh Mesh/cells", "\"Mesh/cells\" is an attribute, no object"},
    {"SetOfComponentToItsOwner", Small, "set Case.1/spare Case.1", "\"Case.1/spare\" did not take \"Case.1\""},
    {"SetOfDefaultManagement", Small, "set Case.1/defaultManagement Mesh",
     "\"Case.1/defaultManagement\" is a part that its object needs"},
    {"SetToDefaultManagement", Small, "set Case.1/spare list/defaultManagement",
     "\"list/defaultManagement\" is a part that its object needs"},
    {"UnsetWithoutDefaultManagement", Small, "unset Mesh/cells",
     "the object of \"Mesh/cells\" has no default management"},
    {"DefaultWithoutDefaultManagement", Small, "default Mesh/cells",
     "the object of \"Mesh/cells\" has no default management"},
    {"DefaultUnreadable", Small, "default Case.1/relaxation half", "\"Case.1/relaxation\": \"half\" is no real"},
    {"IsSetWithoutDefaultManagement", Small, "isset Mesh/cells",
     "the object of \"Mesh/cells\" has no default management"},
    {"IsSetOfNothing", Small, "isset Case.1/tilte",
     "\"Case.1/tilte\" leads nowhere: No attribute tilte; did you mean \"title\"?"},
    {"UndoOfNothing", Small, "undo", "nothing to undo"},
    {"AutoOfNeither", Small, "auto Case.1/title true", "\"true\" is neither on nor off"},
    {"ChoicesOfNoChoice", Flow, "choices Flow.1", "\"Flow.1\" is no Choice, but of type Flow"},
    {"ChooseOfNoChoice", Flow, "choose Flow.1 direct", "\"Flow.1\" is no Choice, but of type Flow"},
    {"ChooseOfNotOffered", Flow, "choose Flow.1/solver \"conjugate gradient\"",
     "\"conjugate gradient\" is none of the choices of \"Flow.1/solver\"; there are \"direct\" and \"gmres\""},
    {"ChooseMisspelt", Flow, "choose Flow.1/solver gmress",
     "\"gmress\" is none of the choices of \"Flow.1/solver\"; did you mean \"gmres\"?"},
    {"ProhibitWithoutManager", Flow, "prohibit Flow.1/energy on",
     "\"Flow.1/energy\" has no manager: the catalog does not mark its type VYRCfdChoice with \"manager\": true"},
    {"AllowWithoutManager", Flow, "allow Flow.1/energy on",
     "\"Flow.1/energy\" has no manager: the catalog does not mark its type VYRCfdChoice with \"manager\": true"},
    {"ResetWithoutManager", Flow, "reset Flow.1/energy",
     "\"Flow.1/energy\" has no manager: the catalog does not mark its type VYRCfdChoice with \"manager\": true"},
    {"ResetOfNoChoice", Flow, "reset Flow.1", "\"Flow.1\" is no Choice, but of type Flow"},
    {"ResetMisspelt", Flow, "reset Flow.1/solver kept", "\"kept\" is not keep"},
    {"SaveNowhere", Small, "save nowhere/out.model.json",
     "nowhere/out.model.json: cannot be written: No such file or directory"},
    {"SaveWithoutName", Small, "save \"\"", "\"\" names no file"},
    {"SaveToStandardOutput", Small, "save -",
     "- is no file: standard output has the answers; a file of that name is ./-"},
    {"HelpOfNothing", Small, "help lst", "no command \"lst\"; did you mean \"ls\"?"},
};
INSTANTIATE_TEST_SUITE_P(Shell, FailingScripts, testing::ValuesIn(FailingCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(ShellTest, Help_ListsEveryCommand)
{
    const ToolRun run = Script(Flow, "help\n");
    for (const char* command : {"ls [PATH]",
                                "get PATH",
                                "set PATH VALUE",
                                "unset PATH",
                                "default PATH [VALUE]",
                                "auto PATH [on|off]",
                                "test [PATH] CONDITION",
                                "apply PATH CONFIG",
                                "records PATH",
                                "choices PATH",
                                "choose PATH CHOICE",
                                "prohibit PATH CHOICE...",
                                "allow PATH CHOICE...",
                                "reset PATH [keep]",
                                "explain PATH",
                                "isset PATH",
                                "new TYPE [NAME]",
                                "insert PATH ENTRY [POSITION]",
                                "delete PATH [POSITION]",
                                "undo",
                                "errors",
                                "save [FILE]",
                                "help [COMMAND]",
                                "quit",
                                "exit"})
        EXPECT_NE(("\n" + run.output).find(std::string("\n") + command + "  "), std::string::npos) << command;
}

/// What stands behind a mark at the beginning of lines.
std::vector<std::string> Marked(const std::string& iText, const std::string& iMark)
{
    std::vector<std::string> rests;
    std::istringstream lines(iText);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(iMark))
            rests.push_back(line.substr(iMark.size()));
    return rests;
}

TEST_F(ShellTest, Help_HasAnExampleOfEachCommand_ThatWorksOnTheSample)
{
    std::string questions;
    for (const std::string& line : Marked(Script(Flow, "help\n").output, ""))
        questions += "help " + line.substr(0, line.find(' ')) + "\n";
    const std::vector<std::string> examples = Marked(Script(Flow, questions).output, "Example: ");
    EXPECT_EQ(examples.size(), Marked(questions, "help ").size());
    std::string script;
    for (const std::string& example : examples)
        if (example != "quit" && example != "exit")
            script += example + "\n";
    EXPECT_EQ(Script(External, script).status, 0) << Script(External, script).errors;
}

TEST_F(ShellTest, Apply_ThatFailsInTheMiddle_ShowsWhatItHasDone)
{
    const ToolRun run = Script(Small, "apply Case.1 breaksOff\n");
    EXPECT_EQ(Outcome(run),
              Outcome(1, "note: the command has changed something before it failed; undo takes that back\n"
                         "stdin:1: \"breaksOff\" failed on \"Case.1\"\n"
                         "error: No attribute unheardOf in VYRCfdObjectAccess::SetStrings, status 0x80004005\n"
                         "failed call: specAccess[path].SetStrings(valuesList) in "
                         "VYRCfdConfigurator::ApplyConfiguration, status 0x80004005\n"));
    EXPECT_EQ(run.output.substr(0, run.output.find('\n')), "Case.1  Case");
}

TEST_F(ShellTest, Questions_LeaveNothingInTheModel)
{
    ASSERT_EQ(Outcome(Script(Flow, "save plain.model.json\n")), Outcome(0, ""));
    ASSERT_EQ(
        Outcome(Script(
            Flow,
            "ls Flow.1\nls Flow.1/turbulence\nget Flow.1/speed\ndefault Flow.1/speed\n"
            "auto Flow.1/speed\nisset Flow.1/speed\ntest Flow.1 speed>1\nrecords Flow.1\nchoices Flow.1/turbulence\n"
            "explain Flow.1/speed\nexplain Flow.1/turbulence/value\nerrors\nhelp\nsave asked.model.json\n")),
        Outcome(0, ""));
    EXPECT_EQ(Read("asked.model.json"), Read("plain.model.json"));
}

TEST_F(ShellTest, DefaultOfARecord_StaysTheRecords_ForWhoAsksAgain)
{
    // Putting the attribute back looks the record up, which default management keeps like a custom default.
    EXPECT_EQ(Script(Small, "default Case.1/tolerance\nunset Case.1/tolerance\ndefault Case.1/tolerance\n").output,
              "1e-08 (record)\n1e-08 (record)\n");
}

TEST_F(ShellTest, Managers_AreForDerivedTypesToo)
{
    Write("Derived.catalog.json", R"({"catalog": "Derived", "uses": ["Small"], "types": [
        {"name": "DerivedChoice", "base": "SolverChoice"},
        {"name": "MarkedChoice", "base": "SolverChoice", "manager": true, "startup": {"value": "direct"}}]})");
    Write("derived.model.json", R"({"model": 1, "catalogs": ["Derived"], "objects": [
        {"type": "DerivedChoice", "name": "A"}, {"type": "MarkedChoice", "name": "B"},
        {"type": "SolverChoice", "name": "C"}, {"type": "VYRCfdChoice", "name": "D"}]})");
    const ToolRun run =
        Script("derived.model.json", "prohibit A direct\nprohibit B gmres\nprohibit C gmres\nprohibit D x\n");
    EXPECT_EQ(Outcome(run), Outcome(1, "stdin:4: \"D\" has no manager: the catalog does not mark its type VYRCfdChoice "
                                       "with \"manager\": true\n"));
    EXPECT_EQ(run.output, "A  DerivedChoice\n    choices: [\"direct\", \"conjugate gradient\", \"gmres\"] -> "
                          "[\"conjugate gradient\", \"gmres\"]\n"
                          "B  MarkedChoice\n    choices: [\"direct\", \"conjugate gradient\", \"gmres\"] -> "
                          "[\"direct\", \"conjugate gradient\"]\n"
                          "C  SolverChoice\n    value: \"gmres\" -> \"direct\"\n"
                          "    choices: [\"direct\", \"conjugate gradient\", \"gmres\"] -> "
                          "[\"direct\", \"conjugate gradient\"]\n");
}
} // namespace
