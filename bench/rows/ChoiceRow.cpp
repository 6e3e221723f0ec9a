// A Choice whose value is switched between two choices that bring different objects.

#include <memory>
#include <stdexcept>

#include "OurTypes.h"
#include "OurWorks.h"
#include "Rows.h"
#include "Slope.h"
#include "VYRCfdObjectAccess.h"
#include "VYRICfdChoice.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneModel.h"

namespace Bench
{
namespace
{
struct Stage
{
    VYRStandalone::Model model;
    ORXISpecObject_var object;
    VYRICfdChoice_var choice;
};

Work Switch(int iChoices)
{
    DeclareTypes("BenchStartupA", ValuesLevel(), "VYRCfdValues");
    DeclareTypes("BenchStartupB", ValuesLevel(), "VYRCfdValues");
    const auto stage = std::make_shared<Stage>();
    stage->object = stage->model.Create("VYRCfdChoice", "Choice.1");
    stage->choice = stage->object;
    std::vector<ORXUnicodeString> choices;
    std::vector<ORXUnicodeString> startups;
    for (int i = 0; i < iChoices; ++i)
    {
        choices.push_back(("choice" + std::to_string(i)).c_str());
        startups.push_back(i % 2 == 0 ? "BenchStartupA1" : "BenchStartupB1");
    }
    stage->choice->Configure(choices, startups, choices.front(), "Model");
    // In the middle of the list, one of each startup.
    const ORXUnicodeString even = choices[static_cast<std::size_t>(iChoices / 4 * 2)];
    const ORXUnicodeString odd = choices[static_cast<std::size_t>(iChoices / 4 * 2 + 1)];
    return {[=](std::size_t iTimes) {
                for (std::size_t i = 0; i < iTimes; ++i)
                    stage->choice->SetChoice(i % 2 == 0 ? odd : even);
                const VYRCfdObjectAccess cursor{ORXBaseUnknown_var(stage->object)};
                const char* expected = iTimes % 2 != 0 ? "BenchStartupB1" : "BenchStartupA1";
                if (!(cursor["Data"].GetType() == expected) || !VYRStandalone::Reports().empty())
                    throw std::runtime_error("the Choice does not switch");
            },
            {},
            // So that the next run begins with another startup than this one ended.
            [=] { stage->choice->SetChoice(even); }};
}
} // namespace

std::vector<Line> ChoiceRow(const Settings& iSettings)
{
    std::vector<Line> lines = Compare(12, "a Choice switched between two startups, among 10", Switch(10),
                                      {{"row 5, ours", WriteValues(), 25, 12}}, iSettings.rounds);

    const std::vector<int> sizes{125, 250, 500, 1000};
    std::vector<Work> works;
    for (const int size : sizes)
        works.push_back(Switch(size));
    const Interleaved measured(works, 11);
    Line line{12,
              "the same, among 125 to 1,000: linear",
              TimesText(measured, works.size()),
              "125; 250; 500; 1,000",
              Slope(measured, sizes),
              1.15};
    line.unit = "slope";
    lines.push_back(line);
    return lines;
}
} // namespace Bench
