#include "FaultRun.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <new>
#include <set>
#include <sstream>

#include "Allocations.h"

namespace
{
using VYRStandalone::Model;

constexpr int UnsetInARow = 8;

char currentRun[256];

[[noreturn]] void Terminate()
{
    std::fprintf(stderr, "terminated in: %s\n", currentRun);
    std::abort();
}

void Arm(const Plan& iPlan)
{
    if (iPlan.what == Plan::What::Call)
    {
        VYRStandalone::Fault fault;
        fault.call = iPlan.number;
        fault.times = !iPlan.all ? 1 : iPlan.unset ? UnsetInARow : 0;
        fault.status = iPlan.status;
        fault.isUnset = iPlan.unset;
        VYRStandalone::PlantFault(fault);
    }
    else if (iPlan.what == Plan::What::Allocation)
        Allocations::FailFrom(iPlan.number, iPlan.all);
}

int Disarm()
{
    const int allocations = Allocations::StopFailing();
    const int calls = VYRStandalone::FaultsHit();
    VYRStandalone::ClearFaults();
    return allocations + calls;
}

/// Runs it while something fails; what it throws is named.
void Act(const Action& iAction, const Plan& iPlan, Outcome& oOutcome)
{
    const char* thrown = "";
    Arm(iPlan);
    try
    {
        oOutcome.answer = iAction();
    }
    catch (const std::bad_alloc&)
    {
        thrown = "bad_alloc";
    }
    catch (const VYRStandalone::NullHandleError&)
    {
        thrown = "NullHandleError";
    }
    catch (const VYRStandalone::NullPointerError&)
    {
        thrown = "NullPointerError";
    }
    catch (const std::exception&)
    {
        thrown = "another exception";
    }
    oOutcome.hits = Disarm();
    oOutcome.thrown = thrown;
}

Outcome RunInside(const Scenario& iScenario, const Plan& iPlan)
{
    Outcome outcome;
    FaultBench bench;
    const Action action = iScenario.prepare(bench);
    outcome.before = bench.m_model.Text();
    EXPECT_EQ(Reported(), Records{}) << iScenario.name << ": reported by what comes before";
    Act(action, iPlan, outcome);
    outcome.reports = Reported();
    outcome.after = bench.m_model.Text();
    return outcome;
}

/// Whether a model is read back as it was written. Each text is looked at once.
bool IsReadBack(const std::string& iText)
{
    static std::set<std::string> known;
    if (known.contains(iText))
        return true;
    if (Model::Parse(iText, "read back").Text() != iText)
        return false;
    known.insert(iText);
    return true;
}

bool IsFailed(const std::string& iAnswer)
{
    return iAnswer.starts_with("E_") || iAnswer.starts_with("0x8");
}

std::string TextOf(const Record& iRecord)
{
    std::ostringstream text;
    PrintTo(iRecord, &text);
    return text.str();
}

Lines LinesOf(const std::string& iText)
{
    Lines lines;
    std::istringstream stream(iText);
    for (std::string line; std::getline(stream, line);)
    {
        line.erase(0, line.find_first_not_of(' '));
        if (line.ends_with(','))
            line.pop_back();
        lines.push_back(line);
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

bool IsTelling(const std::string& iLine)
{
    return !iLine.empty() && !iLine.ends_with('{') && !iLine.ends_with('[') && !iLine.ends_with('}') &&
           iLine.find(": null") == std::string::npos;
}

/// The lines that have gone and come, of many the numbers.
std::string Difference(const std::string& iBefore, const std::string& iAfter)
{
    constexpr std::size_t mostLines = 6;
    const Lines before = LinesOf(iBefore);
    const Lines after = LinesOf(iAfter);
    Lines gone;
    Lines come;
    std::set_difference(before.begin(), before.end(), after.begin(), after.end(), std::back_inserter(gone));
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::back_inserter(come));
    std::erase_if(gone, [](const std::string& iLine) { return !IsTelling(iLine); });
    std::erase_if(come, [](const std::string& iLine) { return !IsTelling(iLine); });
    if (gone.size() + come.size() > mostLines)
        return " -" + std::to_string(gone.size()) + " +" + std::to_string(come.size()) + " lines";
    std::string text;
    for (const std::string& line : gone)
        text += " -" + line;
    for (const std::string& line : come)
        text += " +" + line;
    return text;
}

/// As the lines of the golden files have it.
std::string BriefOf(const Record& iRecord)
{
    static constexpr const char* kinds[] = {"assertion", "error", "failed call"};
    const std::string status = iRecord.status == E_FAIL ? "" : " " + AnswerOf(iRecord.status);
    return std::string(kinds[static_cast<int>(iRecord.kind)]) + status + " \"" + iRecord.text + "\" of " +
           iRecord.function;
}
} // namespace

std::string TextOf(const Plan& iPlan)
{
    if (iPlan.what == Plan::What::Nothing)
        return "nothing fails";
    const bool isCall = iPlan.what == Plan::What::Call;
    const std::string what = isCall ? iPlan.unset ? "value" : "call" : "allocation";
    const std::string number = std::to_string(iPlan.number);
    const std::string status = isCall ? iPlan.unset ? " (unset)" : " (" + AnswerOf(iPlan.status) + ")" : "";
    const std::string many = isCall && iPlan.unset ? std::to_string(UnsetInARow) : "all";
    return iPlan.all ? many + " " + what + "s from " + number + " on" + status : what + " " + number + status;
}

Outcome RunScenario(const Scenario& iScenario, const Plan& iPlan)
{
    ShowWhenTerminated(iScenario.name + ", " + TextOf(iPlan));
    Outcome outcome;
    const int components = VYRStandalone::LiveComponents();
    const long blocks = Allocations::Outstanding();
    long copied = 0;
    {
        const Outcome inside = RunInside(iScenario, iPlan);
        const long atCopy = Allocations::Outstanding();
        outcome = inside;
        copied = Allocations::Outstanding() - atCopy;
    }
    outcome.blocks = Allocations::Outstanding() - blocks - copied;
    outcome.components = VYRStandalone::LiveComponents() - components;
    if (iScenario.check)
        iScenario.check();
    return outcome;
}

std::string DefectOf(const Scenario& iScenario, const Plan& iPlan, const Outcome& iOutcome)
{
    const bool isAllocation = iPlan.what == Plan::What::Allocation;
    // An empty entry in a list of objects is fatal where a name is sought, as a null of the host is.
    const bool mayThrow =
        iOutcome.thrown.empty() || iOutcome.thrown == (isAllocation ? "bad_alloc" : "NullPointerError");
    if (!mayThrow)
        return "throws " + iOutcome.thrown;
    if (!IsReadBack(iOutcome.after))
        return "the model is not read back as it was written: " + iOutcome.after;
    if (iScenario.kind == Scenario::Kind::Reads && iOutcome.before != iOutcome.after)
        return "the model has changed:" + Difference(iOutcome.before, iOutcome.after);
    for (const Record& report : iOutcome.reports)
    {
        if (!report.function.starts_with("VYRCfd") && !report.function.starts_with("VYRECfd"))
            return "a report of somebody else: " + TextOf(report);
        if (report.status >= 0)
            return "a report without failure: " + TextOf(report);
    }
    const bool needsReport = !isAllocation && !iScenario.isSilent && iScenario.kind != Scenario::Kind::HandsOn;
    if (needsReport && IsFailed(iOutcome.answer) && iOutcome.reports.empty())
        return "fails without a report: " + iOutcome.answer;
    return "";
}

std::string LineOf(const Outcome& iOutcome, const Outcome& iDone)
{
    std::string line = iOutcome.thrown.empty() ? iOutcome.answer : "throws " + iOutcome.thrown;
    // A model that both is as before and as it should be tells nothing.
    if (iOutcome.after != iDone.after)
        line += iOutcome.after == iOutcome.before ? "; model as before"
                                                  : "; model" + Difference(iDone.after, iOutcome.after);
    for (const Record& report : iOutcome.reports)
        line += "; " + BriefOf(report);
    return line;
}

std::string WithoutStatus(std::string iLine)
{
    for (std::size_t at = iLine.find(" E_NOTIMPL"); at != std::string::npos; at = iLine.find(" E_NOTIMPL"))
        iLine.erase(at, std::strlen(" E_NOTIMPL"));
    for (const char* status : {"E_FAIL", "E_NOTIMPL"})
        for (std::size_t at = iLine.find(status); at != std::string::npos; at = iLine.find(status))
            iLine.replace(at, std::strlen(status), "failed");
    return iLine;
}

void ShowWhenTerminated(const std::string& iRun)
{
    static const bool isSet = std::set_terminate(&Terminate) != nullptr;
    static_cast<void>(isSet);
    std::snprintf(currentRun, sizeof(currentRun), "%s", iRun.c_str());
}
