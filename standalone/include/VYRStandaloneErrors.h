#ifndef VYRStandaloneErrors_H
#define VYRStandaloneErrors_H

/**
 * @file
 * What the error service of the stand-alone host holds, and the exceptions with which it reacts to faults of
 * programming and to documents that it cannot read.
 */

#include <stdexcept>
#include <string>
#include <vector>

#include "ORXStatus.h"
#include "VYRStandaloneExport.h"

namespace VYRStandalone
{
/// One record of the error service.
struct Report
{
    /// By which operation of `VYRFeaErrorManager` it came.
    enum class Kind
    {
        Assertion,
        Error,
        FailedCall
    };

    /// What was reported.
    Kind kind;
    /// Source text of the condition or of the call, or the formatted message.
    std::string text;
    /// Qualified name of the function that reported.
    std::string function;
    /// Where in the source it was reported.
    /// @{
    std::string file;
    int line;
    /// @}
    /// Status of a failed call; E_FAIL for an assertion and an error.
    HRESULT status;
};

/// Takes the reports of this thread, oldest first, and leaves none.
VYRStandaloneExport std::vector<Report> TakeReports();

/// The reports of this thread, oldest first; borrowed, valid until the next report or `TakeReports`.
VYRStandaloneExport const std::vector<Report>& Reports();

/// The status byte of this thread. It is 0 at first.
VYRStandaloneExport unsigned char ErrorStatus();
/// Writes that byte, as `VYRFeaErrorManager::SetErrorStatus` does.
VYRStandaloneExport void SetErrorStatus(unsigned char iStatus);

/// A call through a null handle.
class VYRStandaloneExport NullHandleError : public std::logic_error
{
public:
    NullHandleError();
};

/// The fatal reaction to an unexpected null pointer.
class VYRStandaloneExport NullPointerError : public std::logic_error
{
public:
    NullPointerError();
};

/**
 * A catalog or model that cannot be read or written. `what()` is one line: "FILE:LINE:COLUMN: MESSAGE" for wrong
 * syntax, "FILE: PATH: MESSAGE" for a wrong shape, with the path inside the document as in "/types/0/name", and
 * "FILE: MESSAGE" for everything else. Nothing of the document has taken effect.
 */
class VYRStandaloneExport DocumentError : public std::runtime_error
{
public:
    /// Wrong syntax. Line and column count from 1, columns in characters.
    DocumentError(const std::string& iFile, int iLine, int iColumn, const std::string& iMessage);
    /// Wrong shape; an empty path leaves the path out.
    DocumentError(const std::string& iFile, const std::string& iPath, const std::string& iMessage);

    /// Name of the file, or the label of a text.
    const std::string& File() const noexcept { return m_file; }
    /// Place inside the document; empty for wrong syntax.
    const std::string& Path() const noexcept { return m_path; }
    /// 0 where the error has no place in the text.
    /// @{
    int Line() const noexcept { return m_line; }
    int Column() const noexcept { return m_column; }
    /// @}

private:
    std::string m_file;
    std::string m_path;
    int m_line = 0;
    int m_column = 0;
};
} // namespace VYRStandalone

#endif
