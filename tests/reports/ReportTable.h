#ifndef ReportTable_H
#define ReportTable_H

/**
 * @file
 * The reports that the module can make, one row each: what is reported, and how it is provoked.
 */

#include <functional>
#include <string>
#include <vector>

#include "ReportBench.h"

struct ReportRow
{
    /// What the error service is to hold.
    Record record;
    /// Does through the public face what is reported, and gives the answer of the call; see `AnswerOf`.
    std::function<std::string(ReportBench& ioBench)> provoke;
    /// "E_FAIL", another status as "0x80004001", "S_OK", "true" or "false".
    std::string answer;
    /// What is reported before it, by what the operation calls.
    Records before = {};
    /// What is reported behind it, by what has called the operation.
    Records behind = {};
    /// The message as the source has it, where that is not the text itself: a format, or the name of what holds it.
    std::string source = {};
    /// Why no caller can come to see it; empty for all others.
    std::string unreachable = {};
};

using ReportRows = std::vector<ReportRow>;

/// All rows, each report once.
const ReportRows& ReportTable();

// Its parts, each in a file of its own.
void AddCursorReadReports(ReportRows& ioRows);
void AddCursorWriteReports(ReportRows& ioRows);
void AddCursorListReports(ReportRows& ioRows);
void AddConditionReports(ReportRows& ioRows);
void AddDefaultReports(ReportRows& ioRows);
void AddChoiceReports(ReportRows& ioRows);
void AddManagerReports(ReportRows& ioRows);
void AddConfigurationReports(ReportRows& ioRows);

std::string AnswerOf(HRESULT iStatus);
std::string AnswerOf(bool iAnswer);

/// A failed status that no check makes by itself: where it comes back, it has been handed on.
inline constexpr HRESULT Handed = E_NOTIMPL;
inline const std::string HandedAnswer = "0x80004001";

#endif
