#ifndef ScriptLines_H
#define ScriptLines_H

/**
 * @file
 * Commands from a script.
 */

#include <fstream>

#include "LineSource.h"

namespace Tool
{
class ScriptLines final : public LineSource
{
public:
    /// Reads standard input.
    ScriptLines();
    /// @throws Failure for a file that cannot be opened, and for a device
    explicit ScriptLines(const std::string& iFile);

    std::optional<std::string> Next() override;
    bool IsTerminal() const override { return false; }
    std::string Place() const override;
    std::string Name() const override { return m_name; }

private:
    std::ifstream m_file;
    std::istream& m_stream;
    std::string m_name;
    std::size_t m_line = 0;
};
} // namespace Tool

#endif
