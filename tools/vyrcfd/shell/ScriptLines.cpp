#include "ScriptLines.h"

#include <cerrno>
#include <cstdio>
#include <iostream>
#include <system_error>

#include "Failure.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// @throws Failure
[[noreturn]] void FailFor(const std::string& iName, const char* iWhat)
{
    throw Failure(iName + ": " + iWhat + ": " + std::generic_category().message(errno));
}
} // namespace

ScriptLines::ScriptLines() : m_stream(std::cin), m_name("stdin") {}

ScriptLines::ScriptLines(const std::string& iFile) : m_stream(m_file), m_name(OneLine(iFile))
{
    errno = 0;
    m_file.open(iFile, std::ios::binary);
    if (!m_file)
        FailFor(m_name, "cannot be opened");
}

std::optional<std::string> ScriptLines::Next()
{
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    std::string line;
    errno = 0;
    if (!std::getline(m_stream, line))
    {
        // The stream of standard input tells an end and a failure alike.
        if (m_stream.bad() || (&m_stream == &std::cin && std::ferror(stdin) != 0))
            FailFor(m_name, "cannot be read");
        return std::nullopt;
    }
    ++m_line;
    if (m_line == 1 && line.starts_with(ByteOrderMark))
        line.erase(0, ByteOrderMark.size());
    return line;
}

std::string ScriptLines::Place() const
{
    return m_name + ":" + std::to_string(m_line);
}
} // namespace Tool
