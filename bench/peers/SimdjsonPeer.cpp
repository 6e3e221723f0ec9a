// The fastest reader of JSON.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <simdjson.h>
#include <stdexcept>
#include <vector>

#include "Peers.h"

namespace
{
using namespace Bench;

// One parser for all files, as its documentation advises. Does less than ours: it does not look for the files along a
// path list, keeps no document beyond the next, enters no names into a map and looks none up.
const PeerEntry parseFiles("simdjson", "parse files", [](const std::string& iFolder) {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(iFolder))
        files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    return Work{[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            simdjson::dom::parser parser;
            for (const std::string& file : files)
            {
                simdjson::dom::element document;
                if (parser.load(file).get(document) != simdjson::SUCCESS)
                    throw std::runtime_error("simdjson cannot read " + file);
                benchmark::DoNotOptimize(document);
            }
        }
    }};
});
} // namespace
