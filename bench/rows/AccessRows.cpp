// Reads and writes through the cursor, and conditions.

#include "OurWorks.h"
#include "Peers.h"
#include "Rows.h"

namespace Bench
{
std::vector<Line> ReadByPathRow(const Settings& iSettings)
{
    return Compare(1, "read a real at depth 4 by path text", ReadByPath(),
                   {{"Teuchos sublist chain and get", PeerWork("Teuchos", "read path"), 0.7, 0.35},
                    {"RapidJSON Pointer parsed", PeerWork("RapidJSON", "read path"), 0.8, 0.4}},
                   iSettings.rounds);
}

std::vector<Line> ReadByKeysRow(const Settings& iSettings)
{
    return Compare(2, "read a real at depth 4 by key functions", ReadByKeys(),
                   {{"Teuchos sublist chain and get", PeerWork("Teuchos", "read path"), 0.4, 0.16}}, iSettings.rounds);
}

std::vector<Line> WriteByPathRow(const Settings& iSettings)
{
    return Compare(3, "write at depth 4 by path, no listeners", WriteByPath(),
                   {{"row 1, ours", ReadByPath(), 1.15, 1.05}}, iSettings.rounds);
}

std::vector<Line> OneLevelRow(const Settings& iSettings)
{
    std::vector<Line> lines = Compare(4, "read one level, by name", ReadByName(),
                                      {{"Teuchos get", PeerWork("Teuchos", "read name"), 0.8, 0.3}}, iSettings.rounds);
    const std::vector<Line> held =
        Compare(4, "read one level, by a held attribute cursor", ReadHeld(),
                {{"QMetaProperty read", PeerWork("Qt", "read held"), 0.4, 0.1}}, iSettings.rounds);
    lines.insert(lines.end(), held.begin(), held.end());
    return lines;
}

std::vector<Line> WriteValuesRow(const Settings& iSettings)
{
    return Compare(5, "write to a Values feature, flag kept, one listener", WriteValues(),
                   {{"g_object_set with notify", PeerWork("GObject", "write"), 0.7, 0.25}}, iSettings.rounds);
}

std::vector<Line> ConditionRow(const Settings& iSettings)
{
    std::vector<Line> lines = Compare(6, "condition a/b==1.5, evaluate", EvaluateCondition(),
                                      {{"Lua t.a.b==1.5", PeerWork("Lua", "evaluate"), 3, 1}}, iSettings.rounds);
    const std::vector<Line> constructed =
        Compare(6, "condition a/b==1.5, construct", ConstructCondition(),
                {{"muParser parse", PeerWork("muParser", "parse"), 0.15, 0.06}}, iSettings.rounds);
    lines.insert(lines.end(), constructed.begin(), constructed.end());
    return lines;
}
} // namespace Bench
