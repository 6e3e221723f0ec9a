#include "Table.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace Bench
{
namespace
{
std::string NumberText(double iNumber)
{
    char text[32];
    const double size = iNumber < 0 ? -iNumber : iNumber;
    std::snprintf(text, sizeof(text),
                  size >= 100   ? "%.0f"
                  : size >= 10  ? "%.1f"
                  : size >= 0.1 ? "%.2f"
                                : "%.4f",
                  iNumber);
    return text;
}

std::string WithUnit(double iNumber, const std::string& iUnit)
{
    return iUnit.empty() ? NumberText(iNumber) : NumberText(iNumber) + " " + iUnit;
}

std::array<std::string, 8> Cells(const Line& iLine)
{
    const std::string aim = !iLine.aim ? "" : WithUnit(*iLine.aim, iLine.unit);
    std::string met = iLine.IsReached() ? "met" : iLine.figure ? "NOT MET" : "not measured";
    if (iLine.IsReached() && iLine.aim && *iLine.figure <= *iLine.aim)
        met = "met, aim too";
    if (!iLine.fault.empty())
        met += ": " + iLine.fault;
    return {std::to_string(iLine.row),
            iLine.work,
            iLine.ours,
            iLine.peer,
            iLine.figure ? WithUnit(*iLine.figure, iLine.unit) : "",
            WithUnit(iLine.reach, iLine.unit),
            aim,
            met};
}

std::string Quoted(const std::string& iText)
{
    std::string made = "\"";
    for (const char character : iText)
    {
        if (character == '"' || character == '\\')
            made += '\\';
        made += character;
    }
    return made + '"';
}
} // namespace

std::string TimeText(double iNanoseconds)
{
    if (iNanoseconds < 1e3)
        return NumberText(iNanoseconds) + " ns";
    if (iNanoseconds < 1e6)
        return NumberText(iNanoseconds / 1e3) + " us";
    if (iNanoseconds < 1e9)
        return NumberText(iNanoseconds / 1e6) + " ms";
    return NumberText(iNanoseconds / 1e9) + " s";
}

int CountReached(const std::vector<Line>& iLines)
{
    return static_cast<int>(
        std::count_if(iLines.begin(), iLines.end(), [](const Line& iLine) { return iLine.IsReached(); }));
}

void Print(const std::vector<Line>& iLines)
{
    std::vector<std::array<std::string, 8>> rows{{"#", "work", "ours", "beside", "figure", "reach", "aim", "goal"}};
    for (const Line& line : iLines)
        rows.push_back(Cells(line));
    std::array<std::size_t, 8> widths{};
    for (const auto& row : rows)
        for (std::size_t cell = 0; cell < row.size(); ++cell)
            widths[cell] = std::max(widths[cell], row[cell].size());

    for (std::size_t row = 0; row < rows.size(); ++row)
    {
        std::string text = "|";
        for (std::size_t cell = 0; cell < widths.size(); ++cell)
            text += " " + rows[row][cell] + std::string(widths[cell] - rows[row][cell].size(), ' ') + " |";
        std::puts(text.c_str());
        if (row > 0)
            continue;
        text = "|";
        for (const std::size_t width : widths)
            text += std::string(width + 2, '-') + "|";
        std::puts(text.c_str());
    }
    std::printf("%d of %d goals reached\n", CountReached(iLines), static_cast<int>(iLines.size()));
}

void PrintJson(const std::vector<Line>& iLines)
{
    std::puts("{ \"goals\": [");
    for (std::size_t i = 0; i < iLines.size(); ++i)
    {
        const Line& line = iLines[i];
        char reach[32];
        char figure[32] = "null";
        char aim[32] = "null";
        std::snprintf(reach, sizeof(reach), "%.6g", line.reach);
        if (line.figure)
            std::snprintf(figure, sizeof(figure), "%.6g", *line.figure);
        if (line.aim)
            std::snprintf(aim, sizeof(aim), "%.6g", *line.aim);
        std::printf("  { \"row\": %d, \"work\": %s, \"ours\": %s, \"beside\": %s, \"figure\": %s, \"unit\": %s, "
                    "\"reach\": %s, \"aim\": %s, \"reached\": %s, \"fault\": %s }%s\n",
                    line.row, Quoted(line.work).c_str(), Quoted(line.ours).c_str(), Quoted(line.peer).c_str(), figure,
                    Quoted(line.unit).c_str(), reach, aim, line.IsReached() ? "true" : "false",
                    Quoted(line.fault).c_str(), i + 1 < iLines.size() ? "," : "");
    }
    std::printf("], \"reached\": %d, \"of\": %d }\n", CountReached(iLines), static_cast<int>(iLines.size()));
}
} // namespace Bench
