/**
 * @file
 * Every scenario, with one host call or one allocation after the other failing. What each failed call leads to stands
 * in data/, which was read and found right; renew.sh shows what has changed.
 *
 * The everyday tests run a share; with VYR_FAULTS=all in the environment they run everything. VYR_FAULT_FIGURES names a
 * file to which each test adds a line: scenarios, injected failures, defects.
 */

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "FaultRun.h"

namespace
{
/// Beyond these a scenario is given up: one fault shows often.
constexpr int MostDefects = 5;
/// A scenario that does not run through by then never does.
constexpr int MostCalls = 20000;
/// Failed allocations that the everyday share has of each scenario.
constexpr int EverydayAllocations = 6;

bool RunsEverything()
{
    const char* share = std::getenv("VYR_FAULTS");
    return share != nullptr && std::string(share) == "all";
}

class FaultTest : public ChoiceTest, public testing::WithParamInterface<std::size_t>
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        FaultBench::SetUp();
    }

    void TearDown() override
    {
        VYRStandalone::ResetOfficialVariable("ORXInstallPath");
        ChoiceTest::TearDown();
        if (const char* file = std::getenv("VYR_FAULT_FIGURES"))
            std::ofstream(file, std::ios::app)
                << Group().name << ' ' << m_scenarios << ' ' << m_injected << ' ' << m_defects << std::endl;
    }

    static const ScenarioGroup& Group() { return ScenarioGroups()[GetParam()]; }

    /// How the scenario ends when nothing fails. What the process keeps is there afterwards.
    Outcome Begin(const Scenario& iScenario)
    {
        ++m_scenarios;
        m_left = MostDefects;
        RunScenario(iScenario, {});
        Outcome done = RunScenario(iScenario, {});
        for (int again = 0; again < 2 && !Leak(iScenario, done).empty(); ++again)
            done = RunScenario(iScenario, {});
        Expect(iScenario, {}, DefectOf(iScenario, {}, done));
        Expect(iScenario, {}, Leak(iScenario, done));
        return done;
    }

    /// Runs it while something fails, and behind that without. @return the outcome of the former
    Outcome Inject(const Scenario& iScenario, const Plan& iPlan, const Outcome& iDone)
    {
        Outcome outcome = RunScenario(iScenario, iPlan);
        if (outcome.hits == 0)
            return outcome;
        ++m_injected;
        Expect(iScenario, iPlan, DefectOf(iScenario, iPlan, outcome));
        // A failure may be the first to take a road on which the process fills something that it keeps.
        for (int again = 0; again < 2 && !Leak(iScenario, outcome).empty(); ++again)
            outcome = RunScenario(iScenario, iPlan);
        Expect(iScenario, iPlan, Leak(iScenario, outcome));
        const Outcome next = RunScenario(iScenario, {});
        if (LineOf(next, iDone) != LineOf(iDone, iDone))
            Expect(iScenario, iPlan, "the next run on a fresh model is another: " + LineOf(next, iDone));
        return outcome;
    }

    /// The outcomes of one failed call after the other, or of one unset value after the other, as lines.
    Lines EachFails(const Scenario& iScenario, bool iUnset, const Outcome& iDone)
    {
        Lines lines;
        for (int call = 1; call <= MostCalls && !IsGivenUp(); ++call)
        {
            const Outcome outcome = Inject(iScenario, {Plan::What::Call, call, false, E_FAIL, iUnset}, iDone);
            if (outcome.hits == 0)
                break;
            lines.push_back(LineOf(outcome, iDone));
        }
        EXPECT_LT(lines.size(), static_cast<std::size_t>(MostCalls)) << iScenario.name;
        return lines;
    }

    bool IsGivenUp() const { return m_left <= 0; }

    /// @param iDefect empty for none
    void Expect(const Scenario& iScenario, const Plan& iPlan, const std::string& iDefect)
    {
        if (iDefect.empty())
            return;
        ++m_defects;
        --m_left;
        ADD_FAILURE() << Group().name << ", " << iScenario.name << ", " << TextOf(iPlan) << ": " << iDefect;
    }

private:
    static std::string Leak(const Scenario& iScenario, const Outcome& iOutcome)
    {
        if (iOutcome.components != 0)
            return "components left alive: " + std::to_string(iOutcome.components);
        return iOutcome.blocks != 0 && !iScenario.isKept ? "blocks of memory lost: " + std::to_string(iOutcome.blocks)
                                                         : "";
    }

    int m_scenarios = 0;
    int m_injected = 0;
    int m_defects = 0;
    int m_left = MostDefects;
};

/// A golden file: consecutive calls whose failures lead to the same stand on one line, and scenarios of which all is
/// the same under one heading.
class GoldenText
{
public:
    /// @param iCalls one line for each call that fails @param iValues one for each value that is unset
    void Add(const Scenario& iScenario, const Lines& iCalls, const Lines& iValues, const std::string& iDone)
    {
        const std::string body = Body("", iCalls) + Body("unset ", iValues) + "done: " + iDone + '\n';
        const auto same = std::find_if(m_sections.begin(), m_sections.end(),
                                       [&](const auto& iOther) { return iOther.second == body; });
        if (same != m_sections.end())
            same->first += ", " + iScenario.name;
        else
            m_sections.emplace_back("== " + iScenario.name, body);
    }

    /// Compares it with the file of that name, or writes it where that is asked for.
    void Compare(const std::string& iName) const
    {
        const std::string name = iName + ".txt";
        std::string text;
        for (const auto& [heading, body] : m_sections)
            text += heading + '\n' + body;
        if (const char* folder = std::getenv("VYR_RENEWED_GOLDENS"))
        {
            std::ofstream(std::string(folder) + "/" + name, std::ios::binary) << text;
            return;
        }
        std::ifstream file(std::string(VYR_TEST_DATA_DIR) + "/" + name, std::ios::binary);
        const std::string golden{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        EXPECT_EQ(text, golden) << name << "; see tests/faults/renew.sh";
    }

private:
    static std::string Body(const std::string& iWhat, const Lines& iLines)
    {
        std::string body;
        for (std::size_t at = 0; at < iLines.size();)
        {
            std::size_t behind = at + 1;
            while (behind < iLines.size() && iLines[behind] == iLines[at])
                ++behind;
            body += iWhat + std::to_string(at + 1) + (behind > at + 1 ? "-" + std::to_string(behind) : "") + ": " +
                    iLines[at] + '\n';
            at = behind;
        }
        return body;
    }

    std::vector<std::pair<std::string, std::string>> m_sections;
};

TEST_P(FaultTest, EachCallFails)
{
    GoldenText golden;
    for (const Scenario& scenario : Group().scenarios)
    {
        const Outcome done = Begin(scenario);
        const Lines lines = EachFails(scenario, false, done);
        const Lines values = EachFails(scenario, true, done);
        golden.Add(scenario, lines, values, LineOf(done, done));

        // The status makes no difference but for itself.
        const int calls = static_cast<int>(lines.size());
        for (int call = 1; call <= calls && RunsEverything() && !IsGivenUp(); ++call)
        {
            const Plan plan{Plan::What::Call, call, false, E_NOTIMPL};
            const std::string line = LineOf(Inject(scenario, plan, done), done);
            if (WithoutStatus(line) != WithoutStatus(lines[static_cast<std::size_t>(call) - 1]))
                Expect(scenario, plan, "not as with E_FAIL: " + line);
        }
        for (const Plan& way : {Plan{Plan::What::Call, 0, false, S_FALSE}, Plan{Plan::What::Call, 0, true, E_FAIL},
                                Plan{Plan::What::Call, 0, true, S_FALSE}})
            for (int call = 1; call <= calls && RunsEverything() && !IsGivenUp(); ++call)
                Inject(scenario, {way.what, call, way.all, way.status}, done);
        const int reads = static_cast<int>(values.size());
        for (int read = 1; read <= reads && RunsEverything() && !IsGivenUp(); ++read)
            Inject(scenario, {Plan::What::Call, read, true, E_FAIL, true}, done);
    }
    golden.Compare(Group().name);
}

TEST_P(FaultTest, EachAllocationFails)
{
    for (const Scenario& scenario : Group().scenarios)
    {
        const Outcome done = Begin(scenario);
        for (const bool all : {false, true})
        {
            int step = scenario.step;
            for (int allocation = 1; allocation <= MostCalls && !IsGivenUp(); allocation += step)
            {
                if (Inject(scenario, {Plan::What::Allocation, allocation, all, S_OK}, done).hits == 0)
                    break;
                // The first are tried one by one, those behind them at growing distances.
                if (!RunsEverything() && allocation >= EverydayAllocations)
                    step += step / 2 + 1;
            }
            if (!RunsEverything())
                break;
        }
    }
}

/// As many as the process has groups of scenarios; their objects need the types, which a test declares.
INSTANTIATE_TEST_SUITE_P(Scenarios, FaultTest, testing::Range(std::size_t{0}, ScenarioGroups().size()),
                         [](const testing::TestParamInfo<std::size_t>& iInfo) {
                             return ScenarioGroups()[iInfo.param].name;
                         });
} // namespace
