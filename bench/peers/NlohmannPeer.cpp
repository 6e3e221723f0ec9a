// A JSON document of maps and vectors.

#include <benchmark/benchmark.h>
#include <memory>
#include <nlohmann/json.hpp>

#include "Peers.h"

namespace
{
using namespace Bench;

const PeerEntry hold("nlohmann", "hold", [](const std::string& iText) {
    auto held = std::make_shared<nlohmann::json>();
    return Work{[=](std::size_t) { *held = nlohmann::json::parse(iText); }, {}, [=] { *held = nullptr; }, 1};
});

const PeerEntry loadAndSave("nlohmann", "load and save", [](const std::string& iText) {
    auto held = std::make_shared<nlohmann::json>();
    return Work{[=](std::size_t) {
                    *held = nlohmann::json::parse(iText);
                    const std::string text = held->dump();
                    benchmark::DoNotOptimize(text.data());
                },
                {},
                [=] { *held = nullptr; },
                1};
});
} // namespace
