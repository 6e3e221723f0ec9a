#include "Output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include "Failure.h"
#include "Progress.h"

namespace Tool
{
namespace
{
bool hasAnswered = false;
}

void Print(const std::string& iText)
{
    hasAnswered = hasAnswered || !iText.empty();
    errno = 0;
    if (std::fwrite(iText.data(), 1, iText.size(), stdout) == iText.size() && std::fflush(stdout) == 0)
        return;
    const int error = errno;
    const std::string message = "vyrcfd: standard output: cannot be written: " + std::generic_category().message(error);
    if (error == EPIPE)
        throw BrokenPipe(message);
    throw OutputFailure(message);
}

bool HasAnswered()
{
    return hasAnswered;
}

void PrintError(const std::string& iLine)
{
    Progress::Erase();
    // Nobody is left to tell when this fails.
    std::fputs((iLine + "\n").c_str(), stderr);
}

Colours::Colours()
{
    const char* refused = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    const bool isDumb = terminal != nullptr && std::string_view(terminal) == "dumb";
    m_on = (refused == nullptr || *refused == '\0') && !isDumb && isatty(STDOUT_FILENO) == 1;
}

std::string Colours::Wrapped(const char* iCode, const std::string& iText) const
{
    return m_on ? std::string("\x1B[") + iCode + "m" + iText + "\x1B[0m" : iText;
}
} // namespace Tool
