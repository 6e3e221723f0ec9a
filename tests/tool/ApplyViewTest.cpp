/**
 * @file
 * How vyrcfd apply shows what has changed, on a terminal and elsewhere.
 */

#include "SmallTest.h"

namespace
{
struct View
{
    const char* name;
    const char* model;
    const char* object;
    const char* configuration;
    /// Lines of the answer on a terminal, without the line ends of terminals.
    std::vector<std::string> lines;
};

void PrintTo(const View& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Views : public SmallTest, public testing::WithParamInterface<View>
{
protected:
    ToolRun RunOnTerminal() const
    {
        ToolSettings terminal{m_folder.Path()};
        terminal.terminal = true;
        return Run({"apply", GetParam().model, GetParam().object, GetParam().configuration}, terminal);
    }
    ToolRun RunPlainly() const { return Run({"apply", GetParam().model, GetParam().object, GetParam().configuration}); }
};

std::string WithoutColours(std::string iText)
{
    for (const char* code : {"\x1B[0m", "\x1B[1m", "\x1B[31m", "\x1B[32m", "\x1B[33m"})
        for (std::size_t at = 0; (at = iText.find(code)) != std::string::npos;)
            iText.erase(at, std::string(code).size());
    return iText;
}

std::string WithPlainLineEnds(std::string iText)
{
    std::erase(iText, '\r');
    return iText;
}

TEST_P(Views, MarkOnATerminalWhatComesAndGoes)
{
    const std::string shown = "\n" + WithPlainLineEnds(RunOnTerminal().output);
    for (const std::string& line : GetParam().lines)
        EXPECT_NE(shown.find("\n" + line + "\n"), std::string::npos) << line << "\nin" << shown;
}

TEST_P(Views, SayTheSameWithoutColours)
{
    EXPECT_EQ(WithoutColours(WithPlainLineEnds(RunOnTerminal().output)), RunPlainly().output);
}

const View ViewCases[] = {
    {"ValuesAndFlags",
     "small.model.json",
     "Case.1",
     "cavity",
     {"\x1B[1mCase.1\x1B[0m  Case", "    title: \x1B[31m(unset)\x1B[0m -> \x1B[32m\"Cavity flow\"\x1B[0m",
      "    author: \x1B[31m\"somebody\"\x1B[0m -> \x1B[32m\"the team\"\x1B[0m, \x1B[33mnow auto\x1B[0m",
      "    \x1B[32m+ record title: default \"Cavity flow\"\x1B[0m"}},
    {"ReplacedAndGone",
     "flow.model.json",
     "Flow 3",
     "turbulent",
     {"\x1B[1mFlow 3/turbulence/Data\x1B[0m", "    \x1B[31m- KOmegaModel\x1B[0m", "    \x1B[32m+ SpalartModel\x1B[0m",
      "    \x1B[31m- intensity: 0.05\x1B[0m", "    \x1B[32m+ ratio: 4\x1B[0m",
      "\x1B[1mFlow 3/solver/Data\x1B[0m  WallLaw\x1B[31m  gone\x1B[0m", "    \x1B[31m- roughness: 0\x1B[0m"}},
    {"New",
     "flow.model.json",
     "Flow 2/turbulence",
     "bySpalart",
     {"\x1B[1mFlow 2/turbulence/Data\x1B[0m  SpalartModel\x1B[32m  new\x1B[0m", "    \x1B[32m+ ratio: 4\x1B[0m",
      "    \x1B[32m+ record ratio: default \"4\"\x1B[0m"}},
};
INSTANTIATE_TEST_SUITE_P(Apply, Views, testing::ValuesIn(ViewCases), [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(SmallTest, Summary_CountsWhatChangedOnObjectsThatStay_NotWhatNewOnesHold)
{
    const std::string shown = Run({"apply", Flow, "Flow 2/turbulence", "bySpalart"}).output;
    const std::string last = shown.substr(shown.rfind('\n', shown.size() - 2) + 1);
    EXPECT_EQ(last,
              "\"bySpalart\" on Flow 2/turbulence: 5 attributes changed, 3 records made, 2 objects made, 1 report "
              "on standard error.\n");
}
} // namespace
