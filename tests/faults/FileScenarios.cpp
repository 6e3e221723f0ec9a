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

void AddModels(ScenarioGroup& ioGroup)
{
    std::vector<Scenario>& scenarios = ioGroup.scenarios;
    scenarios.push_back(With("a model read from text", [](FaultBench&) -> Action {
        return [&text = ModelText()] { return AnswerOf(Model::Parse(text, "text").Objects().size() == 12); };
    }));
    scenarios.push_back(With("a model loaded", [](FaultBench&) -> Action {
        const std::string file = Folder().Write("load.model.json", ModelText());
        return [file] { return AnswerOf(Model::Load(file).Objects().size() == 12); };
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
}
} // namespace

void AddFileScenarios(std::vector<ScenarioGroup>& ioGroups)
{
    ioGroups.push_back({"models", {}});
    AddModels(ioGroups.back());
}
