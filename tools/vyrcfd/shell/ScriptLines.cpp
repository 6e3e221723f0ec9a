#include "ScriptLines.h"

#include <cerrno>
#include <cstdio>
#include <iostream>
#include <system_error>

#include "Failure.h"

namespace Tool
{
std::optional<std::string> ScriptLines::Next()
{
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    std::string line;
    errno = 0;
    if (!std::getline(std::cin, line))
    {
        // The stream itself tells an end and a failure alike.
        if (std::ferror(stdin) != 0)
            throw Failure("stdin: cannot be read: " + std::generic_category().message(errno));
        return std::nullopt;
    }
    ++m_line;
    if (m_line == 1 && line.starts_with(ByteOrderMark))
        line.erase(0, ByteOrderMark.size());
    return line;
}

std::string ScriptLines::Place() const
{
    return "stdin:" + std::to_string(m_line);
}
} // namespace Tool
