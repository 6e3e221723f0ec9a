#ifndef ScriptLines_H
#define ScriptLines_H

/**
 * @file
 * Commands from a script on standard input.
 */

#include "LineSource.h"

namespace Tool
{
class ScriptLines final : public LineSource
{
public:
    std::optional<std::string> Next() override;
    bool IsTerminal() const override { return false; }
    std::string Place() const override;

private:
    std::size_t m_line = 0;
};
} // namespace Tool

#endif
