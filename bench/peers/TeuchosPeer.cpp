// Parameter lists: a tree of named values that solvers read by name.

#include <Teuchos_ParameterList.hpp>
#include <benchmark/benchmark.h>

#include "DefaultItems.h"
#include "Peers.h"
#include "Tree.h"

namespace
{
using namespace Bench;

void Fill(Teuchos::ParameterList& ioList, const Level& iLevel)
{
    for (const Entry& entry : iLevel.entries)
        switch (entry.kind)
        {
        case Entry::Kind::Real:
            ioList.set(entry.name, entry.number);
            break;
        case Entry::Kind::Integer:
            ioList.set(entry.name, static_cast<int>(entry.number));
            break;
        case Entry::Kind::Boolean:
            ioList.set(entry.name, entry.number != 0);
            break;
        case Entry::Kind::String:
            ioList.set(entry.name, entry.text);
            break;
        case Entry::Kind::Level:
            Fill(ioList.sublist(entry.name), *entry.level);
            break;
        }
}

std::shared_ptr<Teuchos::ParameterList> Filled(const Level& iLevel)
{
    auto list = std::make_shared<Teuchos::ParameterList>();
    Fill(*list, iLevel);
    return list;
}

// Texts are given as literals, as in its guide, and so they are to ours.
const PeerEntry readPath("Teuchos", "read path", [](const std::string&) {
    return Work{[list = Filled(PathTree())](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            double value = list->sublist("boundary").sublist("inflow").sublist("turbulence").get<double>("intensity");
            benchmark::DoNotOptimize(value);
        }
    }};
});

const PeerEntry readName("Teuchos", "read name", [](const std::string&) {
    return Work{[list = Filled(ValuesLevel())](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
        {
            double value = list->get<double>("intensity");
            benchmark::DoNotOptimize(value);
        }
    }};
});

// Does less than ours: no record is left, no flag is kept, nobody is told.
const PeerEntry defaults("Teuchos", "defaults", [](const std::string& iNumber) {
    auto valid = std::make_shared<Teuchos::ParameterList>();
    for (const DefaultItem& item : DefaultItems(std::stoi(iNumber)))
        switch (item.kind)
        {
        case Entry::Kind::Real:
            valid->set(item.name, std::stod(item.text));
            break;
        case Entry::Kind::Integer:
            valid->set(item.name, std::stoi(item.text));
            break;
        default:
            valid->set(item.name, item.text);
        }
    auto lists = std::make_shared<std::vector<Teuchos::ParameterList>>();
    return Work{[=](std::size_t iTimes) {
                    for (std::size_t i = 0; i < iTimes; ++i)
                    {
                        (*lists)[i].validateParametersAndSetDefaults(*valid);
                        benchmark::DoNotOptimize((*lists)[i].numParams());
                    }
                },
                [=](std::size_t iTimes) { *lists = std::vector<Teuchos::ParameterList>(iTimes); },
                [=] { lists->clear(); }, 64};
});
} // namespace
