#include "OurWorks.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <stdexcept>

#include "CountingListener.h"
#include "ORXSpecAttrKeyServices.h"
#include "OurTypes.h"
#include "Tree.h"
#include "VYRCfdObjectCondition.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneModel.h"

namespace Bench
{
namespace
{
/// A model of one object, and a cursor on that.
struct Stage
{
    VYRStandalone::Model model;
    ORXISpecObject_var object;
    VYRCfdObjectAccess cursor;
};

std::shared_ptr<Stage> Make(const std::string& iName, const Level& iLevel, const std::string& iBase = {})
{
    DeclareTypes(iName, iLevel, iBase);
    auto stage = std::make_shared<Stage>();
    stage->object = stage->model.Create((iName + "1").c_str(), "Solver.1");
    stage->cursor = VYRCfdObjectAccess(ORXBaseUnknown_var(stage->object));
    return stage;
}

std::shared_ptr<Stage> PathStage()
{
    return Make("BenchPath", PathTree());
}

/// A key function as the generated ones of a catalog are.
template <ORXSpecAttrKeyServices& Record> ORXISpecAttrKey* Key(ORXISpecAttrAccess* iAccess)
{
    return Record.key != nullptr ? Record.key : Record.Get(iAccess);
}

ORXSpecAttrKeyServices boundary{"BenchPath", "BenchPath1", "boundary", nullptr};
ORXSpecAttrKeyServices inflow{"BenchPath", "BenchPath2", "inflow", nullptr};
ORXSpecAttrKeyServices turbulence{"BenchPath", "BenchPath3", "turbulence", nullptr};
ORXSpecAttrKeyServices intensity{"BenchPath", "BenchPath4", "intensity", nullptr};

void Expect(bool iHolds, const char* iWork)
{
    if (!iHolds || !VYRStandalone::Reports().empty())
        throw std::runtime_error(std::string(iWork) + ": does not do what it should");
}

double WrittenValue(std::size_t iNumber)
{
    return static_cast<double>(iNumber & 1023) * 0.001;
}
} // namespace

Work ReadByPath()
{
    const auto stage = PathStage();
    return {[=](std::size_t iTimes) {
        double value = 0;
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            stage->cursor.GetByPath("boundary/inflow/turbulence/intensity").GetDouble(value);
            benchmark::DoNotOptimize(value);
        }
        Expect(value == PathValue, "read by path");
    }};
}

Work ReadByKeys()
{
    const auto stage = PathStage();
    return {[=](std::size_t iTimes) {
        double value = 0;
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            stage->cursor[&Key<boundary>][&Key<inflow>][&Key<turbulence>][&Key<intensity>].GetDouble(value);
            benchmark::DoNotOptimize(value);
        }
        Expect(value == PathValue, "read by keys");
    }};
}

Work WriteByPath()
{
    const auto stage = PathStage();
    return {[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
            stage->cursor.GetByPath("boundary/inflow/turbulence/intensity").SetDouble(WrittenValue(i));
        double value = -1;
        stage->cursor.GetByPath(PathText).GetDouble(value);
        Expect(value == WrittenValue(iTimes - 1), "write by path");
    }};
}

Work ReadByName()
{
    const auto stage = Make("BenchLevel", ValuesLevel());
    return {[=](std::size_t iTimes) {
        double value = 0;
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            stage->cursor["intensity"].GetDouble(value);
            benchmark::DoNotOptimize(value);
        }
        Expect(value == PathValue, "read by name");
    }};
}

Work ReadHeld()
{
    const auto stage = Make("BenchLevel", ValuesLevel());
    return {[=, held = stage->cursor["intensity"]](std::size_t iTimes) {
        double value = 0;
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            held.GetDouble(value);
            benchmark::DoNotOptimize(value);
        }
        Expect(value == PathValue, "read by a held cursor");
    }};
}

Work WriteValues()
{
    const auto stage = Make("BenchValues", ValuesLevel(), "VYRCfdValues");
    const auto told = CountingListener::Listen(stage->object);
    return {[=](std::size_t iTimes) {
        const std::size_t before = *told;
        for (std::size_t i = 0; i < iTimes; ++i)
            stage->cursor["intensity"].SetDouble(WrittenValue(i));
        double value = -1;
        stage->cursor["intensity"].GetDouble(value);
        bool isSet = false;
        stage->cursor["defaultManagement"]["intensity_isset"].GetBoolean(isSet);
        Expect(value == WrittenValue(iTimes - 1) && isSet && *told - before == iTimes, "write to a Values feature");
    }};
}

Work EvaluateCondition()
{
    const auto stage = Make("BenchCondition", ConditionTree());
    const auto condition = std::make_shared<VYRCfdObjectCondition>(stage->cursor, ConditionText);
    return {[=](std::size_t iTimes) {
        bool holds = false;
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            holds = *condition;
            benchmark::DoNotOptimize(holds);
        }
        Expect(holds && stage->object, "evaluate a condition");
    }};
}

Work ConstructCondition()
{
    const auto stage = Make("BenchCondition", ConditionTree());
    return {[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            const VYRCfdObjectCondition condition(stage->cursor, "a/b==1.5");
            benchmark::DoNotOptimize(&condition);
            benchmark::ClobberMemory();
        }
        Expect(!VYRCfdObjectCondition(stage->cursor, ConditionText).HasError(), "construct a condition");
    }};
}

std::vector<std::pair<std::string, Work (*)()>> CountedWorks()
{
    return {{"1-read-by-path", ReadByPath},    {"2-read-by-keys", ReadByKeys},     {"3-write-by-path", WriteByPath},
            {"4-read-by-name", ReadByName},    {"4-read-held", ReadHeld},          {"5-write-values", WriteValues},
            {"6-evaluate", EvaluateCondition}, {"6-construct", ConstructCondition}};
}
} // namespace Bench
