#include "OurModels.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <stdexcept>

#include "ORXSpecAttrKeyServices.h"
#include "OurTypes.h"
#include "VYRCfdObjectAccess.h"
#include "VYRStandaloneModel.h"

namespace Bench
{
namespace
{
ORXSpecAttrKeyServices intensity{"BenchModel", "BenchModel1", "intensity", nullptr};

ORXISpecAttrKey* IntensityKey(ORXISpecAttrAccess* iAccess)
{
    return intensity.key != nullptr ? intensity.key : intensity.Get(iAccess);
}

struct Stage
{
    std::shared_ptr<const std::string> text;
    std::unique_ptr<VYRStandalone::Model> model;

    explicit Stage(const std::string& iText) : text(std::make_shared<const std::string>(iText)) {}

    void Load() { model = std::make_unique<VYRStandalone::Model>(VYRStandalone::Model::Parse(*text, "bench")); }
};

/// Every object has values of its own.
Level ValuesOf(int iObject)
{
    Level values = ValuesLevel();
    for (std::size_t i = 0; i < values.entries.size(); ++i)
    {
        Entry& entry = values.entries[i];
        if (entry.kind == Entry::Kind::Real)
            entry.number = (iObject % 1000 + static_cast<int>(i)) * 0.125;
        else if (entry.kind == Entry::Kind::Integer)
            entry.number = iObject % 5000;
        else if (entry.kind == Entry::Kind::Boolean)
            entry.number = (iObject + static_cast<int>(i)) % 2;
        else
            entry.text += " " + std::to_string(iObject % 100);
    }
    return values;
}
} // namespace

std::string ModelText(int iObjects)
{
    DeclareTypes("BenchModel", ValuesLevel());
    std::string objects;
    for (int object = 1; object <= iObjects; ++object)
        objects += std::string(object > 1 ? ",\n" : "") + R"({ "type": "BenchModel1", "name": "Record.)" +
                   std::to_string(object) + R"(", "values": )" + JsonOf(ValuesOf(object)) + " }";
    const std::string text = R"({ "model": 1, "catalogs": ["BenchModel"], "objects": [)" + objects + "] }";
    return VYRStandalone::Model::Parse(text, "bench").Text();
}

Work LoadModel(const std::string& iText)
{
    const auto stage = std::make_shared<Stage>(iText);
    return {[=](std::size_t) { stage->Load(); }, {}, [=] { stage->model.reset(); }, 1};
}

Work WalkModel(const std::string& iText, int iObjects)
{
    const auto stage = std::make_shared<Stage>(iText);
    stage->Load();
    return {[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            int read = 0;
            for (const ORXISpecObject_var& object : stage->model->Objects())
            {
                double value = 0;
                if (VYRCfdObjectAccess(ORXBaseUnknown_var(object))[&IntensityKey].GetDouble(value) == S_OK)
                    ++read;
                benchmark::DoNotOptimize(value);
            }
            if (read != iObjects)
                throw std::runtime_error("the model is not walked");
        }
    }};
}

Work SaveModel(const std::string& iText)
{
    const auto stage = std::make_shared<Stage>(iText);
    stage->Load();
    return {[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
            if (stage->model->Text().size() != stage->text->size())
                throw std::runtime_error("the model is not saved as it was");
    }};
}

Work LoadAndSaveModel(const std::string& iText)
{
    const auto stage = std::make_shared<Stage>(iText);
    return {[=](std::size_t) {
                stage->Load();
                if (stage->model->Text().size() != stage->text->size())
                    throw std::runtime_error("the model is not saved as it was");
            },
            {},
            [=] { stage->model.reset(); },
            1};
}
} // namespace Bench
