// A large model beside a document of the same data.

#include "Allocations.h"
#include "OurModels.h"
#include "Peers.h"
#include "Rows.h"

namespace Bench
{
namespace
{
constexpr int Objects = 100000;
constexpr int Rounds = 6;

/// Bytes that the work holds on to until it is finished.
double BytesHeldBy(const Work& iWork)
{
    const std::size_t before = LiveBytes();
    iWork.run(1);
    const std::size_t after = LiveBytes();
    iWork.finish();
    return static_cast<double>(after) - static_cast<double>(before);
}

std::string MegabytesText(double iBytes)
{
    return std::to_string(static_cast<int>(iBytes / 1e6)) + " MB";
}
} // namespace

std::vector<Line> MemoryRow(const Settings&)
{
    const std::string text = ModelText(Objects);
    const double ours = BytesHeldBy(LoadModel(text));
    Line line{13,
              "memory of 100,000 objects of 20 attributes",
              MegabytesText(ours),
              "nlohmann: not installed",
              std::nullopt,
              1,
              0.5};
    if (const Work peer = PeerWork("nlohmann", "hold", text))
    {
        const double held = BytesHeldBy(peer);
        line.peer = "nlohmann DOM " + MegabytesText(held);
        line.figure = ours / held;
    }
    return {line};
}

std::vector<Line> LoadAndSaveRow(const Settings&)
{
    const std::string text = ModelText(Objects);
    return Compare(14, "load and save that model", LoadAndSaveModel(text),
                   {{"nlohmann parse and dump", PeerWork("nlohmann", "load and save", text), 1.5, 0.6}}, Rounds);
}
} // namespace Bench
