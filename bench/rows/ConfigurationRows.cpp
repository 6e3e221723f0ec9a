// Default items applied, and how that and large models grow.

#include "OurDefaults.h"
#include "OurModels.h"
#include "Peers.h"
#include "Rows.h"
#include "Slope.h"

namespace Bench
{
namespace
{
constexpr int Rounds = 4;
const std::vector<int>& Sizes()
{
    static const std::vector<int>& sizes = *new std::vector<int>{1000, 10000, 100000};
    return sizes;
}

template <class Maker> Line SlopeLine(const char* iText, const Maker& iMaker)
{
    std::vector<Work> works;
    for (const int size : Sizes())
        works.push_back(iMaker(size));
    const Interleaved measured(works, Rounds, std::chrono::milliseconds(15));
    Line line{10,   iText, TimesText(measured, works.size()), "1,000; 10,000; 100,000", Slope(measured, Sizes()),
              1.15, 1.05};
    line.unit = "slope";
    return line;
}
} // namespace

std::vector<Line> DefaultsRow(const Settings&)
{
    return Compare(9, "apply 1,000 default items, records written", ApplyDefaults(1000),
                   {{"Teuchos validateParametersAndSetDefaults", PeerWork("Teuchos", "defaults", "1000"), 6, 2}}, 21);
}

std::vector<Line> ScalingRow(const Settings&)
{
    return {SlopeLine("default items applied", [](int iSize) { return ApplyDefaults(iSize); }),
            SlopeLine("objects loaded", [](int iSize) { return LoadModel(ModelText(iSize)); }),
            SlopeLine("objects walked by key", [](int iSize) { return WalkModel(ModelText(iSize), iSize); }),
            SlopeLine("objects saved", [](int iSize) { return SaveModel(ModelText(iSize)); })};
}
} // namespace Bench
