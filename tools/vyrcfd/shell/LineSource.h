#ifndef LineSource_H
#define LineSource_H

/**
 * @file
 * Where the shell's commands come from.
 */

#include <optional>
#include <string>

namespace Tool
{
class LineSource
{
public:
    virtual ~LineSource() = default;

    /// The next line without its end; nothing at the end. @throws Failure for what cannot be read
    virtual std::optional<std::string> Next() = 0;

    /// Whether somebody sits there, who sees what went wrong and goes on.
    virtual bool IsTerminal() const = 0;

    /// Where the last line came from, for messages: "stdin:3".
    virtual std::string Place() const = 0;

    /// What the lines come from, for messages: "stdin". Empty for a terminal.
    virtual std::string Name() const { return {}; }
};
} // namespace Tool

#endif
