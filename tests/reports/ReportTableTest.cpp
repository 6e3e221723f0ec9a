/**
 * @file
 * Provokes every report of the table, each in a process of its own: some can be seen only by the first look-up of a key
 * in a process. What stands in the sources and not in the table is found by collect.py.
 */

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

#include "ReportTable.h"

namespace
{
using Kind = VYRStandalone::Report::Kind;

const char* TextOf(Kind iKind)
{
    return iKind == Kind::Assertion ? "assertion" : iKind == Kind::Error ? "error" : "failed call";
}

/// A message as a source writes it, in quotes and with its escapes.
std::string Quoted(const std::string& iText)
{
    std::string quoted = "\"";
    for (const char character : iText)
        quoted += character == '\n' ? "\\n" : std::string(1, character);
    return quoted + "\"";
}

std::string SourceOf(const ReportRow& iRow)
{
    if (!iRow.source.empty())
        return iRow.source;
    return iRow.record.kind == Kind::Error ? Quoted(iRow.record.text) : iRow.record.text;
}

std::string LineOf(const ReportRow& iRow)
{
    const char* state = !iRow.unreachable.empty() ? "unreachable" : iRow.provoke ? "tested" : "untested";
    return std::string(TextOf(iRow.record.kind)) + '\t' + iRow.record.function + '\t' + SourceOf(iRow) + '\t' + state +
           '\t' + iRow.unreachable;
}

Records Expected(const ReportRow& iRow)
{
    Records expected = iRow.before;
    expected.push_back(iRow.record);
    expected.insert(expected.end(), iRow.behind.begin(), iRow.behind.end());
    return expected;
}

/// True when the body fails no expectation. It runs in a child, which shares nothing with the rows before.
template <class Body> bool HoldsInAProcessOfItsOwn(const Body& iBody)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
    {
        iBody();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

class ReportTableTest : public ReportBench
{
protected:
    void Provoke(void (*iAdd)(ReportRows&))
    {
        ReportRows rows;
        iAdd(rows);
        ASSERT_FALSE(rows.empty());
        for (const ReportRow& row : rows)
        {
            if (!row.unreachable.empty())
                continue;
            EXPECT_TRUE(HoldsInAProcessOfItsOwn([&] { Provoke(row); })) << LineOf(row);
        }
    }

private:
    void Provoke(const ReportRow& iRow)
    {
        ASSERT_TRUE(iRow.provoke) << LineOf(iRow);
        const std::string answer = iRow.provoke(*this);
        VYRStandalone::ClearFaults();
        EXPECT_EQ(Reported(), Expected(iRow)) << LineOf(iRow);
        EXPECT_EQ(answer, iRow.answer) << LineOf(iRow);
        LetGo();
        EXPECT_EQ(VYRStandalone::LiveComponentNames(), Lines{}) << LineOf(iRow);
    }
};

TEST_F(ReportTableTest, CursorReads)
{
    Provoke(&AddCursorReadReports);
}

TEST_F(ReportTableTest, CursorWrites)
{
    Provoke(&AddCursorWriteReports);
}

TEST_F(ReportTableTest, CursorLists)
{
    Provoke(&AddCursorListReports);
}

TEST_F(ReportTableTest, Conditions)
{
    Provoke(&AddConditionReports);
}

TEST_F(ReportTableTest, Defaults)
{
    Provoke(&AddDefaultReports);
}

TEST_F(ReportTableTest, Choices)
{
    Provoke(&AddChoiceReports);
}

TEST_F(ReportTableTest, Managers)
{
    Provoke(&AddManagerReports);
}

TEST_F(ReportTableTest, Configurations)
{
    Provoke(&AddConfigurationReports);
}

/// Also writes the table for collect.py, where it asks for it.
TEST(ReportTable, HasEachReportOnce)
{
    std::set<std::string> seen;
    std::string lines;
    for (const ReportRow& row : ReportTable())
    {
        const std::string line = LineOf(row);
        EXPECT_TRUE(seen.insert(line.substr(0, line.find("\ttested"))).second) << line;
        EXPECT_NE(row.unreachable.empty(), !row.provoke) << line;
        lines += line + '\n';
    }
    if (const char* file = std::getenv("VYR_REPORT_TABLE"))
        std::ofstream(file, std::ios::binary) << lines;
}
} // namespace
