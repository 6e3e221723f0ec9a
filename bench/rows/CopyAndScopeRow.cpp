// What every link of a chain pays: a cursor copied, and a trace scope that is off.

#include <benchmark/benchmark.h>
#include <memory>
#include <stdexcept>

#include "Allocations.h"
#include "Interleaved.h"
#include "OurTypes.h"
#include "Rows.h"
#include "VYRCfdObjectAccess.h"
#include "VYRCfdTraceManager.h"
#include "VYRFeaIndentedTraceManager.h"
#include "VYRStandaloneModel.h"

namespace Bench
{
namespace
{
/// One count up and down again, in memory.
Work CountPair()
{
    const auto count = std::make_shared<int>(1);
    return {[=](std::size_t iTimes) {
        int* place = count.get();
        benchmark::DoNotOptimize(place);
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            ++*place;
            benchmark::ClobberMemory();
            --*place;
            benchmark::ClobberMemory();
        }
    }};
}

/// An attribute cursor, which holds an object and a key.
Work CursorCopy()
{
    DeclareTypes("BenchCopy", ValuesLevel());
    const auto model = std::make_shared<VYRStandalone::Model>();
    const VYRCfdObjectAccess object{ORXBaseUnknown_var(model->Create("BenchCopy1", "Solver.1"))};
    return {[model, held = object["intensity"]](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            const VYRCfdObjectAccess copy(held);
            benchmark::DoNotOptimize(&copy);
            benchmark::ClobberMemory();
        }
    }};
}

Work SilentScope()
{
    if (VYRCfdTraceManager::_Features == nullptr || VYRCfdTraceManager::_Features->IsActive())
        throw std::runtime_error("the row of trace scopes needs a channel that is off");
    return {[](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            VYRFeaIndentedTraceManager scope("Bench::Scope", __FILE__, __LINE__, VYRCfdTraceManager::_Features, 30);
            benchmark::DoNotOptimize(&scope);
            benchmark::ClobberMemory();
        }
    }};
}

Line Beside(const char* iText, const Work& iWork, double iReach, int iRounds)
{
    const std::size_t before = Allocations();
    iWork.run(1000);
    const std::size_t allocations = Allocations() - before;

    // Long enough that the machine is left alone at some time.
    const Interleaved measured({iWork, CountPair()}, 5 * iRounds);
    const double ours = measured.Fastest(0);
    const double pair = measured.Fastest(1);
    Line line{7, iText, TimeText(ours), "a count pair " + TimeText(pair), ours - pair, iReach};
    line.unit = "ns more";
    if (allocations > 0)
        line.fault = std::to_string(allocations) + " allocations in 1000";
    return line;
}
} // namespace

std::vector<Line> CopyAndScopeRow(const Settings& iSettings)
{
    return {Beside("a cursor copied, without allocation", CursorCopy(), 5, iSettings.rounds),
            Beside("a trace scope that is off, without allocation", SilentScope(), 1, iSettings.rounds)};
}
} // namespace Bench
