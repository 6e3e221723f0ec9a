#ifndef FailureAnswer_H
#define FailureAnswer_H

/**
 * @file
 * What programs are answered when a command has failed before it could answer.
 */

#include <string>
#include <vector>

#include "Reports.h"

namespace Tool
{
/// Standard error gets the reason, and standard output, where JSON is wanted and nothing stands there yet, one object
/// of the shape of the shell's answers.
class FailureAnswer
{
public:
    /// @param iCommand name of the command; empty where none was chosen
    FailureAnswer(std::string iCommand, bool iIsJson) : m_command(std::move(iCommand)), m_isJson(iIsJson) {}

    /// @param iText a line or several. @param iReports which standard error gets behind it
    void Tell(const std::string& iText, const std::vector<ReportRecord>& iReports = {}) const;

private:
    void Answer(const std::string& iText, const std::vector<ReportRecord>& iReports) const;

    std::string m_command;
    bool m_isJson;
};
} // namespace Tool

#endif
