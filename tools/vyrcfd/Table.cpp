#include "Table.h"

#include <algorithm>

#include "Wording.h"

namespace Tool
{
namespace
{
/// A long value does not push the rest of every row away.
constexpr std::size_t WidestColumn = 40;
} // namespace

std::string TableText(const std::vector<std::vector<std::string>>& iRows, const std::string& iIndent)
{
    std::vector<std::size_t> widths(iRows.empty() ? 0 : iRows.front().size());
    for (const std::vector<std::string>& row : iRows)
        for (std::size_t i = 0; i < row.size(); ++i)
            if (Characters(row[i]) <= WidestColumn)
                widths[i] = std::max(widths[i], Characters(row[i]));

    std::string text;
    for (const std::vector<std::string>& row : iRows)
    {
        std::string line = iIndent;
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            const std::size_t width = Characters(row[i]);
            line += row[i] + std::string(width < widths[i] ? widths[i] - width : 0, ' ') + "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}
} // namespace Tool
