/**
 * @file
 * Whole answers, compared with those in data/, which were read and found right. renew.sh shows what has changed.
 */

#include <cstdlib>
#include <fstream>

#include "SmallTest.h"

namespace
{
struct Golden
{
    /// Of its file, with an underscore for the dot.
    const char* name;
    const char* file;
    std::vector<std::string> arguments;
};

void PrintTo(const Golden& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Goldens : public SmallTest, public testing::WithParamInterface<Golden>
{
};

TEST_P(Goldens, StandAsTheyWereRead)
{
    const ToolRun run = Run(GetParam().arguments);
    EXPECT_EQ(run.status, 0) << run.errors;
    if (const char* folder = std::getenv("VYR_RENEWED_GOLDENS"); folder != nullptr)
    {
        std::ofstream(std::string(folder) + "/" + GetParam().file, std::ios::binary) << run.output;
        GTEST_SKIP() << "renewed, not compared";
    }
    EXPECT_EQ(run.output, ReadData(GetParam().file));
}

const Golden Cases[] = {
    {"show_txt", "show.txt", {"show", "small.model.json"}},
    {"show_json", "show.json", {"show", "small.model.json", "Case.1", "--json"}},
    {"apply_txt", "apply.txt", {"apply", "small.model.json", "Cavity", "cavity"}},
    {"apply_json", "apply.json", {"apply", "small.model.json", "Case.1", "cavity", "--json"}},
    {"choice_show_txt", "choice_show.txt", {"show", "flow.model.json"}},
    {"choice_show_json", "choice_show.json", {"show", "flow.model.json", "Flow.1/turbulence", "--json"}},
    {"choice_apply_txt", "choice_apply.txt", {"apply", "flow.model.json", "Flow 3", "turbulent"}},
    {"choice_apply_json",
     "choice_apply.json",
     {"apply", "flow.model.json", "Flow 3/turbulence", "bySpalart", "--json"}},
    {"explain_txt", "explain.txt", {"explain", "small.model.json", "Case.1/tolerance"}},
    {"explain_json", "explain.json", {"explain", "small.model.json", "Case.1/tolerance", "--json"}},
    {"explain_choice_txt", "explain_choice.txt", {"explain", "flow.model.json", "Flow.1/turbulence/value"}},
    {"explain_choice_json",
     "explain_choice.json",
     {"explain", "flow.model.json", "Flow.1/turbulence/value", "--json"}},
    {"explain_list_txt", "explain_list.txt", {"explain", "small.model.json", "Case.1/monitors"}},
    {"explain_unmanaged_json", "explain_unmanaged.json", {"explain", "small.model.json", "Mesh/cells", "--json"}},
    {"describe_txt", "describe.txt", {"describe", "cavity"}},
    {"describe_nested_txt", "describe_nested.txt", {"describe", "turbulent", "--nested"}},
    {"describe_nested_json", "describe_nested.json", {"describe", "turbulent", "--nested", "--json"}},
    {"graph_dot", "graph.dot", {"graph", "turbulent"}},
    {"graph_json", "graph.json", {"graph", "circle", "--json"}},
    {"purge_json", "purge.json", {"purge", "small.model.json", "--json"}},
};
INSTANTIATE_TEST_SUITE_P(Answers, Goldens, testing::ValuesIn(Cases),
                         [](const auto& iInfo) { return iInfo.param.name; });
} // namespace
