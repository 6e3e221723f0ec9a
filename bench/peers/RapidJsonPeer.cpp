// JSON documents, read by JSON pointers.

#include <benchmark/benchmark.h>
#include <memory>
#include <rapidjson/document.h>
#include <rapidjson/pointer.h>

#include "Peers.h"
#include "Tree.h"

namespace
{
using namespace Bench;

// A pointer can be parsed once and kept. A path text that comes from elsewhere, as ours do, is parsed when it is used.
const PeerEntry readPath("RapidJSON", "read path", [](const std::string&) {
    auto document = std::make_shared<rapidjson::Document>();
    document->Parse(JsonOf(PathTree()).c_str());
    return Work{[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            double value = rapidjson::Pointer("/boundary/inflow/turbulence/intensity").Get(*document)->GetDouble();
            benchmark::DoNotOptimize(value);
        }
    }};
});
} // namespace
