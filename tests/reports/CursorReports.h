#ifndef CursorReports_H
#define CursorReports_H

/**
 * @file
 * Rows of the cursor's reports, which differ in data only.
 */

#include "ReportTable.h"

using CursorCall = std::string (*)(const VYRCfdObjectAccess& iCursor);

inline constexpr auto Assertion_ = VYRStandalone::Report::Kind::Assertion;
inline constexpr auto Error_ = VYRStandalone::Report::Kind::Error;
inline constexpr auto FailedCall_ = VYRStandalone::Report::Kind::FailedCall;

/// The error that the cursor of `ReportBench::At("(error)")` carries. It is told as it is.
inline constexpr const char* BrokenText = "broken link %s%n";

struct CursorCase
{
    VYRStandalone::Report::Kind kind;
    const char* text;
    /// See `ReportBench::At`.
    const char* place;
    CursorCall call;
    /// The host's operation that fails, with `Handed` where it answers a status; empty for none.
    const char* fault = "";
    Records before = {};
};

using CursorCases = std::vector<CursorCase>;

/// Qualified name of an operation of the cursor, as reports carry it.
std::string In(const std::string& iOperation);

/// @param iAnswer of all cases but failed calls, which give the status that they report
void AddCursorRows(ReportRows& ioRows, const char* iOperation, const CursorCases& iCases,
                   const std::string& iAnswer = "E_FAIL");

#endif
