#include "OurDefaults.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

#include "DefaultItems.h"
#include "TemporaryFolder.h"
#include "VYRCfdConfigurator.h"
#include "VYRCfdObjectAccess.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneModel.h"
#include "VYRStandaloneServices.h"

namespace Bench
{
namespace
{
class Configurator : public VYRCfdConfigurator
{
public:
    explicit Configurator(std::vector<ORXUnicodeString> iFiles) : VYRCfdConfigurator(iFiles) {}
};

struct Stage
{
    std::string type;
    std::vector<DefaultItem> items;
    Configurator configurator{{"defaults.json"}};
    std::vector<VYRStandalone::Model> models;
    std::vector<ORXISpecObject_var> objects;
};

const char* KindName(Entry::Kind iKind)
{
    return iKind == Entry::Kind::Real ? "real" : iKind == Entry::Kind::Integer ? "integer" : "string";
}

void Declare(const Stage& iStage)
{
    std::string attributes;
    for (const DefaultItem& item : iStage.items)
        attributes += std::string(attributes.empty() ? "" : ",\n") + R"({ "name": ")" + item.name + R"(", "kind": ")" +
                      KindName(item.kind) + "\" }";
    VYRStandalone::DeclareCatalog(R"({ "catalog": ")" + iStage.type + R"(", "uses": ["VYRCfdBase"], "types": [
        { "name": ")" + iStage.type + R"(", "base": "VYRCfdValues", "attributes": [)" +
                                      attributes + "] } ] }",
                                  iStage.type);
}

void LoadConfiguration(Stage& ioStage)
{
    std::string items;
    for (const DefaultItem& item : ioStage.items)
        items += std::string(items.empty() ? "" : ",\n") + R"({ "path": ")" + item.name + R"(", "type": ")" +
                 KindName(item.kind) + R"(", "default": ")" + item.text + "\" }";
    const TemporaryFolder folder;
    folder.Write("reffiles/VYRCfdApp/defaults.json", R"({ "configurations": [ { "name": "empty", "config": [] },
        { "name": "defaults", "config": [)" + items + "] } ] }");
    VYRStandalone::SetOfficialVariable("ORXInstallPath", folder.Path());
    const long status = ioStage.configurator.ApplyConfiguration(NULL_var, "empty");
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
    if (status != S_FALSE)
        throw std::runtime_error("the defaults do not load");
}

/// The last attribute has its default and no flag that it was set on purpose, and every item has its record.
void Check(const Stage& iStage)
{
    const VYRCfdObjectAccess object{ORXBaseUnknown_var(iStage.objects.front())};
    const DefaultItem& last = iStage.items.back();
    ORXUnicodeString text;
    object[last.name.c_str()].GetString(text);
    bool isSet = true;
    object["defaultManagement"][(last.name + "_isset").c_str()].GetBoolean(isSet);
    int records = 0;
    object["defaultManagement"]["configuration"].GetListSize(records);
    if (!(text == last.text.c_str()) || isSet || records != static_cast<int>(iStage.items.size()) ||
        !VYRStandalone::Reports().empty())
        throw std::runtime_error("the defaults are not applied");
}
} // namespace

Work ApplyDefaults(int iNumber)
{
    auto stage = std::make_shared<Stage>();
    stage->type = "BenchDefaults" + std::to_string(iNumber);
    stage->items = DefaultItems(iNumber);
    Declare(*stage);
    LoadConfiguration(*stage);
    return {[=](std::size_t iTimes) {
                for (std::size_t i = 0; i < iTimes; ++i)
                    stage->configurator.ApplyConfiguration(stage->objects[i], "defaults");
            },
            [=](std::size_t iTimes) {
                for (std::size_t i = 0; i < iTimes; ++i)
                {
                    stage->models.emplace_back();
                    stage->objects.push_back(stage->models.back().Create(stage->type.c_str(), "Solver.1"));
                }
            },
            [=] {
                Check(*stage);
                stage->objects.clear();
                stage->models.clear();
            },
            static_cast<std::size_t>(std::max(1, 32000 / iNumber))};
}
} // namespace Bench
