#include "Interleaved.h"
#include "Rows.h"

namespace Bench
{
std::vector<Line> Compare(int iRow, const std::string& iText, const Work& iOurs,
                          const std::vector<Opponent>& iOpponents, int iRounds)
{
    std::vector<Work> works{iOurs};
    for (const Opponent& opponent : iOpponents)
        if (opponent.work)
            works.push_back(opponent.work);
    const Interleaved measured(works, iRounds);

    std::vector<Line> lines;
    std::size_t place = 0;
    for (const Opponent& opponent : iOpponents)
    {
        Line line{iRow,
                  iText,
                  TimeText(measured.Nanoseconds(0)),
                  opponent.name + ": not installed",
                  std::nullopt,
                  opponent.reach,
                  opponent.aim};
        if (opponent.work)
        {
            ++place;
            line.peer = opponent.name + " " + TimeText(measured.Nanoseconds(place));
            line.figure = measured.Ratio(0, place);
        }
        lines.push_back(line);
    }
    return lines;
}
} // namespace Bench
