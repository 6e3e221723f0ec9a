#include "ScriptLines.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "Failure.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// No command is as long; what has no line breaks at all must not fill the memory.
constexpr std::size_t LongestLine = std::size_t{16} << 20U;

/// @throws Failure
[[noreturn]] void FailFor(const std::string& iName, const char* iWhat)
{
    throw Failure(iName + ": " + iWhat + ": " + std::generic_category().message(errno));
}
} // namespace

ScriptLines::ScriptLines() : m_stream(std::cin), m_name("stdin") {}

ScriptLines::ScriptLines(const std::string& iFile) : m_stream(m_file), m_name(OneLine(iFile))
{
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(iFile, ignored);
    const bool isDevice = std::filesystem::is_character_file(status) || std::filesystem::is_block_file(status);
    // Which is an empty script.
    const bool isNull = isDevice && std::filesystem::canonical(iFile, ignored) == "/dev/null";
    if (isDevice && !isNull)
        throw Failure(m_name + ": is a device, not a file");
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
    ++m_line;
    char one = '\0';
    while (m_stream.get(one) && one != '\n')
    {
        if (line.size() == LongestLine)
            throw Failure(Place() + ": the line is too long: one has at most 16 MB");
        line += one;
    }
    // The stream of standard input tells an end and a failure alike.
    if (m_stream.bad() || (&m_stream == &std::cin && std::ferror(stdin) != 0))
        FailFor(m_name, "cannot be read");
    if (!m_stream && line.empty())
        return std::nullopt;
    if (m_line == 1 && line.starts_with(ByteOrderMark))
        line.erase(0, ByteOrderMark.size());
    return line;
}

std::string ScriptLines::Place() const
{
    return m_name + ":" + std::to_string(m_line);
}
} // namespace Tool
