#include "Scenario.h"

#include <memory>

#include "TemporaryFolder.h"
#include "VYRCfdConfigurator.h"
#include "VYRStandaloneCatalog.h"

namespace
{
using VYRStandalone::Model;

/// Text of a model with everything in it: nested Choices, records, flags, references, an empty entry.
const std::string& ModelText()
{
    static const std::string text = [] {
        FaultBench bench;
        EXPECT_EQ(FaultBench::Configurator().ApplyConfiguration(bench.Part(), "all"), S_OK);
        EXPECT_EQ(FaultBench::Configurator().ApplyConfiguration(bench.Choice(), "recordAll"), S_OK);
        EXPECT_EQ(ManagerOf(bench.Managed())->ProhibitChoice("alpha"), S_OK);
        EXPECT_EQ(bench.At("zones").SetObject(ORXBaseUnknown_var(), 2), S_OK);
        // A Choice that is configured sees its lists at unequal lengths in between.
        VYRStandalone::TakeReports();
        return bench.m_model.Text();
    }();
    return text;
}

/// In a folder of its own, which lives as long as the process.
const TemporaryFolder& Folder()
{
    static const TemporaryFolder folder;
    return folder;
}

Scenario With(const char* iName, const std::function<Action(FaultBench&)>& iPrepare)
{
    Scenario scenario;
    scenario.name = iName;
    scenario.kind = Scenario::Kind::Reads;
    scenario.prepare = iPrepare;
    return scenario;
}

/// The catalog that was declared last; each run declares one of its own.
struct Declared
{
    int number = 0;
    bool isDone = false;
    /// Before.
    std::vector<std::string> types;
    std::vector<std::string> managed;

    std::string Base() const { return "FaultBase" + std::to_string(number); }
    std::string Part() const { return "FaultMadePart" + std::to_string(number); }
    std::string Made() const { return "FaultMade" + std::to_string(number); }
};

Declared& Last()
{
    static Declared last;
    return last;
}

/// A type that nothing was made of yet: the catalog adds to it.
std::string BaseText()
{
    return R"({ "catalog": ")" + Last().Base() + R"(", "uses": ["VYRCfdBase", "FaultBench"], "types": [
        { "name": ")" +
           Last().Base() + R"(", "base": "FaultZone", "startup": { "layers": 5 } } ] })";
}

std::string CatalogText()
{
    return R"({ "catalog": ")" + Last().Made() + R"(", "uses": ["VYRCfdBase", "FaultBench", ")" + Last().Base() +
           R"("], "types": [
        { "name": ")" +
           Last().Base() + R"(", "attributes": [
            { "name": "gained", "kind": "string", "default": "a text that needs the heap" } ],
            "startup": { "outputs": ["lift"] } },
        { "name": ")" +
           Last().Made() + R"(", "base": ")" + Last().Base() + R"(", "attributes": [
            { "name": "part", "kind": "component", "type": ")" +
           Last().Part() + R"(" },
            { "name": "size", "kind": "real", "unit": "m", "default": "5 mm" } ], "startup": { "layers": 8 } },
        { "name": ")" +
           Last().Part() + R"(", "base": "VYRCfdValues", "attributes": [
            { "name": "labels", "kind": "list", "of": "string", "default": ["a", "a text that needs the heap"] },
            { "name": "state", "kind": "enumeration", "values": ["on", "off"], "default": "off" } ] },
        { "name": ")" +
           Last().Made() + R"(Choice", "base": "ChoiceTestThree", "manager": true } ] })";
}

/// A declaration that failed has left nothing behind; it can be made good, and its types are whole then.
void ExpectCatalog()
{
    if (!Last().isDone)
    {
        EXPECT_EQ(VYRStandalone::TypeNames(), Last().types);
        EXPECT_EQ(VYRStandalone::ManagedTypes(), Last().managed);
        VYRStandalone::DeclareCatalog(CatalogText(), "again");
    }
    EXPECT_EQ(VYRStandalone::TypeNames().size(), Last().types.size() + 3);
    EXPECT_EQ(VYRStandalone::ManagedTypes().size(), Last().managed.size() + 1);
    Model model;
    const ORXISpecObject_var base = model.Create(Last().Base().c_str(), "Base.1");
    EXPECT_EQ(ValueOf(base, "layers"), "5");
    EXPECT_EQ(TextsOf(base, "outputs"), (Lines{"lift"}));
    const ORXISpecObject_var made = model.Create(Last().Made().c_str(), "Made.1");
    EXPECT_EQ(ValueOf(made, "size"), "0.005 m");
    EXPECT_EQ(ValueOf(made, "layers"), "8");
    EXPECT_EQ(ValueOf(made, "temperature"), "300");
    EXPECT_EQ(ValueOf(made, "gained"), "a text that needs the heap");
    EXPECT_EQ(TextsOf(made, "outputs"), (Lines{"lift"}));
    EXPECT_EQ(TextsOf(At(made, "part"), "labels"), (Lines{"a", "a text that needs the heap"}));
    EXPECT_EQ(ValueOf(At(made, "part"), "state"), "off");
    EXPECT_FALSE(!DefaultManagementOf(At(made, "part")));
}

void AddModels(ScenarioGroup& ioGroup)
{
    std::vector<Scenario>& scenarios = ioGroup.scenarios;
    scenarios.push_back(With("a model read from text", [](FaultBench&) -> Action {
        return [&text = ModelText()] { return std::to_string(Model::Parse(text, "text").Objects().size()); };
    }));
    scenarios.push_back(With("a model loaded", [](FaultBench&) -> Action {
        const std::string file = Folder().Write("load.model.json", ModelText());
        return [file] { return std::to_string(Model::Load(file).Objects().size()); };
    }));
    scenarios.push_back(With("a model written to text", [](FaultBench&) -> Action {
        const auto model = std::make_shared<Model>(Model::Parse(ModelText(), "text"));
        return [model] { return AnswerOf(model->Text() == ModelText()); };
    }));
    scenarios.push_back(With("a model saved", [](FaultBench&) -> Action {
        const auto model = std::make_shared<Model>(Model::Parse(ModelText(), "text"));
        const std::string file = Folder().Write("save.model.json", "{}");
        return [model, file] {
            model->Save(file);
            return AnswerOf(true);
        };
    }));
    scenarios.back().check = [] {
        const std::string saved = Folder().Read("save.model.json");
        EXPECT_TRUE(saved == "{}" || saved == ModelText()) << saved;
        for (const std::string& name : Folder().Names())
            EXPECT_TRUE(name == "save.model.json" || name == "load.model.json") << name;
    };
    scenarios.push_back(With("a model closed", [](FaultBench&) -> Action {
        const auto model = std::make_shared<Model>(Model::Parse(ModelText(), "text"));
        return [model] {
            model->Close();
            return AnswerOf(model->Objects().empty());
        };
    }));
    scenarios.push_back(With("a model that ends", [](FaultBench&) -> Action {
        const auto model = std::make_shared<Model>(Model::Parse(ModelText(), "text"));
        return [model] {
            {
                const Model ends(std::move(*model));
            }
            return AnswerOf(true);
        };
    }));
    scenarios.push_back(With("extensions dropped", [](FaultBench&) -> Action {
        const auto model = std::make_shared<Model>(Model::Parse(ModelText(), "text"));
        EXPECT_EQ(ChoiceOf(model->Find("Choice.1"))->Update(), S_OK);
        return [model] {
            model->DropExtensions();
            return AnswerOf(true);
        };
    }));
    scenarios.push_back(With("an object made", [](FaultBench&) -> Action {
        const auto model = std::make_shared<Model>();
        return [model] { return AnswerOf(!!model->Create("FaultPart", "Part.1")); };
    }));
    scenarios.push_back(With("a catalog declared again", [](FaultBench&) -> Action {
        return [] {
            VYRStandalone::DeclareCatalog(R"({ "catalog": "FaultFiles", "uses": ["VYRCfdBase"], "types": [
                { "name": "FaultFile", "base": "VYRCfdValues", "attributes": [
                    { "name": "size", "kind": "real", "unit": "m", "default": "5 mm" } ] } ] })",
                                          "again");
            return AnswerOf(true);
        };
    }));
    scenarios.push_back(With("a catalog declared", [](FaultBench&) -> Action {
        Last() = {Last().number + 1, false, {}, {}};
        VYRStandalone::DeclareCatalog(BaseText(), "base");
        Last().types = VYRStandalone::TypeNames();
        Last().managed = VYRStandalone::ManagedTypes();
        return [text = CatalogText()] {
            VYRStandalone::DeclareCatalog(text, "new");
            Last().isDone = true;
            return AnswerOf(true);
        };
    }));
    scenarios.back().isKept = true;
    // The more types there are, the longer each declaration takes.
    scenarios.back().step = 7;
    scenarios.back().check = &ExpectCatalog;
}
} // namespace

void AddFileScenarios(std::vector<ScenarioGroup>& ioGroups)
{
    ioGroups.push_back({"models", {}});
    AddModels(ioGroups.back());
}
