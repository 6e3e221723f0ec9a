// Making a list equal to another, beside the literal scan with the same host calls.

#include <memory>
#include <stdexcept>

#include "Interleaved.h"
#include "LiteralScan.h"
#include "Rows.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"

namespace Bench
{
namespace
{
constexpr int Long = 10000;
constexpr int Short = 1000;
constexpr int Moves = 10;
constexpr int ScanRounds = 4;
constexpr int Rounds = 21;

constexpr char Catalog[] = R"({ "catalog": "BenchList", "types": [
    { "name": "BenchEntry" },
    { "name": "BenchOwner", "attributes": [ { "name": "title", "kind": "string" },
                                            { "name": "entries", "kind": "list", "of": "reference" } ] } ] })";

struct Move
{
    ORXISpecObject_var object;
    int from;
    int to;
};

/// A stored list, and one that is wanted.
class Stage
{
public:
    /// @param iMoves so many are to be moved forward, from places all over the list
    Stage(int iSize, int iMoves)
    {
        VYRStandalone::DeclareCatalog(Catalog, "BenchList");
        m_owner = m_model.Create("BenchOwner", "Owner");
        access = m_owner;
        key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("entries"));
        cursor = VYRCfdObjectAccess(ORXBaseUnknown_var(m_owner)).Get(key.Pointer(), 0);
        for (int position = 1; position <= iSize; ++position)
        {
            const ORXISpecObject_var entry = m_model.Create("BenchEntry", "Entry");
            access->InsertAtPosition(key, entry, position);
            wanted.push_back(VYRCfdObjectAccess(ORXBaseUnknown_var(entry)));
        }
        for (int move = 1; move <= iMoves; ++move)
            AddMove(move * iSize / (iMoves + 1), move * iSize / (iMoves + 1) - iSize / (3 * iMoves));
    }

    /// As it was stored.
    void Restore()
    {
        for (auto move = m_moves.rbegin(); move != m_moves.rend(); ++move)
            access->MoveInPosition(key, move->object, move->from + 1);
    }

    HRESULT Expected() const { return m_moves.empty() ? S_FALSE : S_OK; }

    ORXISpecAttrAccess_var access;
    ORXISpecAttrKey_var key;
    VYRCfdObjectAccess cursor;
    std::vector<VYRCfdObjectAccess> wanted;

private:
    void AddMove(int iFrom, int iTo)
    {
        const VYRCfdObjectAccess moved = wanted[static_cast<std::size_t>(iFrom)];
        wanted.erase(wanted.begin() + iFrom);
        wanted.insert(wanted.begin() + iTo, moved);
        m_moves.push_back({moved.Self(), iFrom, iTo});
    }

    VYRStandalone::Model m_model;
    ORXISpecObject_var m_owner;
    std::vector<Move> m_moves;
};

/// @param iSet `SetList` or the scan
template <class Set> Work WorkOf(const std::shared_ptr<Stage>& iStage, const Set& iSet)
{
    Work work{[=](std::size_t iTimes) {
        for (std::size_t i = 0; i < iTimes; ++i)
            if (iSet(*iStage) != iStage->Expected())
                throw std::runtime_error("the list is not set");
    }};
    if (iStage->Expected() == S_OK)
    {
        work.finish = [=] { iStage->Restore(); };
        work.most = 1;
    }
    return work;
}

HRESULT Ours(const Stage& iStage)
{
    return iStage.cursor.SetList(iStage.wanted);
}

HRESULT Literal(const Stage& iStage)
{
    return LiteralScan(iStage.access, iStage.key, iStage.wanted);
}

std::vector<std::string> CallsOf(const Work& iWork)
{
    VYRStandalone::CallRecorder recorder;
    iWork.run(1);
    std::vector<std::string> calls = recorder.Take();
    if (iWork.finish)
        iWork.finish();
    return calls;
}

std::vector<Line> Lines(const std::string& iCase, int iMoves)
{
    const auto stage = std::make_shared<Stage>(Long, iMoves);
    const auto small = std::make_shared<Stage>(Short, iMoves);
    const Work ours = WorkOf(stage, Ours);
    const Work scan = WorkOf(stage, Literal);
    const bool hasSameCalls = CallsOf(ours) == CallsOf(scan);

    const Interleaved beside({ours, scan}, ScanRounds);
    Line line{11,
              "SetList, 10,000 entries, " + iCase,
              TimeText(beside.Nanoseconds(0)),
              "the literal scan " + TimeText(beside.Nanoseconds(1)),
              beside.Ratio(0, 1),
              1.0 / 500,
              1.0 / 1500};
    if (!hasSameCalls)
        line.fault = "other host calls than the scan";

    // What takes long has few rounds: it shows in them as well.
    const int rounds = beside.Nanoseconds(0) > 20e6 ? ScanRounds : Rounds;
    const Interleaved growth({ours, WorkOf(small, Ours)}, rounds);
    const Line grown{11,
                     "SetList, 10,000 against 1,000 entries, " + iCase,
                     TimeText(growth.Nanoseconds(0)),
                     "1,000 entries " + TimeText(growth.Nanoseconds(1)),
                     growth.Ratio(0, 1),
                     13};
    return {line, grown};
}
} // namespace

std::vector<Line> SetListRow(const Settings&)
{
    std::vector<Line> lines = Lines("unchanged", 0);
    const std::vector<Line> moved = Lines("ten moved forward", Moves);
    lines.insert(lines.end(), moved.begin(), moved.end());
    return lines;
}
} // namespace Bench
