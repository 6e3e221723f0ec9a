// A parser of mathematical expressions.

#include <benchmark/benchmark.h>
#include <map>
#include <memory>
#include <muParser.h>

#include "Peers.h"
#include "Tree.h"

namespace
{
using namespace Bench;

struct Parser
{
    mu::Parser parser;
    std::map<std::string, double> variables;
};

// The parser, which sets up its functions when it is made, is made once. `SetExpr` alone only keeps the text: the first
// evaluation parses it. Paths are no names to it, so the variable is called by the last of them.
const PeerEntry parse("muParser", "parse", [](const std::string&) {
    auto made = std::make_shared<Parser>();
    for (const Entry& entry : Nested({"b"}, 1.5).entries)
        made->parser.DefineVar(entry.name, &(made->variables[entry.name] = entry.number));
    return Work{[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            made->parser.SetExpr("b==1.5");
            double holds = made->parser.Eval();
            benchmark::DoNotOptimize(holds);
        }
    }};
});
} // namespace
