/**
 * @file
 * `SetList` against a plain scan over plain numbers, call by call: stored lists with repetitions and empty entries,
 * wanted lists with repetitions and error cursors, failing host calls; on a host that tells identities, and on one that
 * does not.
 */

#include <algorithm>
#include <cstdlib>
#include <random>
#include <sstream>

#include "ListFixture.h"
#include "Sanitized.h"
#include "VYRStandaloneInstruments.h"

namespace
{
constexpr int Cases = Repetitions(100000);
constexpr int PoolSize = 12;
constexpr int LongestList = 11;
/// In a stored list an empty entry, in a wanted one an error cursor.
constexpr int Empty = -1;
/// Failures that are printed before the rest is given up.
constexpr int MostFailures = 3;

using Sequence = std::vector<int>;
using Calls = std::vector<std::string>;

/// A host call that is to fail: the `call`-th of its operation, and all behind it if `forever`.
struct Planted
{
    std::string operation;
    int call = 0;
    bool forever = false;
    HRESULT status = E_FAIL;
};

struct Case
{
    std::string list;
    Sequence stored;
    Sequence wanted;
    Planted fault;
};

std::string NameOf(int iPart)
{
    return std::string(1, static_cast<char>('A' + iPart));
}

/// What the scan asks of the host, what it answers, and what the attribute holds then.
class ReferenceScan
{
public:
    explicit ReferenceScan(const Case& iCase) : m_case(iCase), attribute(iCase.stored)
    {
        if (!Fails("ListObjects"))
            m_mirror = iCase.stored;
        status = Run();
    }

private:
    const Case& m_case;
    Sequence m_mirror;
    int m_calls = 0;
    bool m_isChanged = false;

public:
    HRESULT status;
    Calls calls;
    Records reports;
    Sequence attribute;

private:
    HRESULT Run()
    {
        const int count = static_cast<int>(m_case.wanted.size());
        for (int i = 1; i <= count; ++i)
        {
            const int wanted = m_case.wanted[Offset(i)];
            if (wanted == Empty)
            {
                reports.push_back(Assertion("iObjects[i-1].Self()", "VYRCfdObjectAccess::SetList"));
                return E_FAIL;
            }
            bool found = false;
            for (int j = i; j <= static_cast<int>(m_mirror.size()); ++j)
            {
                if (m_mirror[Offset(j)] != wanted)
                    continue;
                found = true;
                if (j != i && !Move(wanted, j, i))
                    return m_case.fault.status;
            }
            if (!found && !Insert(wanted, i))
                return m_case.fault.status;
        }
        for (int position = static_cast<int>(m_mirror.size()); position > count; --position)
            Remove(position);
        return m_isChanged ? S_OK : S_FALSE;
    }

    bool Move(int iPart, int iFrom, int iTo)
    {
        m_isChanged = true;
        calls.push_back(Line("move", iTo) + " = " + NameOf(iPart));
        if (Fails("MoveInPosition"))
            return Report("_spAttr->MoveInPosition(_spKey, (*pVals)[j], i)");
        m_mirror.erase(m_mirror.begin() + Offset(iFrom));
        m_mirror.insert(m_mirror.begin() + Offset(iTo), iPart);

        MoveInAttribute(iPart, iTo);
        return true;
    }

    /// The host is told an object and no position to take it from. It passes over the row of it that stands at the
    /// position already and takes the next; without one the order stays.
    void MoveInAttribute(int iPart, int iTo)
    {
        const auto target = attribute.begin() + Offset(iTo);
        const auto behindRow = std::find_if(target, attribute.end(), [iPart](int iEntry) { return iEntry != iPart; });
        const auto next = std::find(behindRow, attribute.end(), iPart);
        if (next != attribute.end())
            std::rotate(target, next, next + 1);
    }

    bool Insert(int iPart, int iAt)
    {
        m_isChanged = true;
        calls.push_back(Line("insert", iAt) + " = " + NameOf(iPart));
        if (Fails("InsertAtPosition"))
            return Report("_spAttr->InsertAtPosition(_spKey, spSpec, i)");
        m_mirror.insert(m_mirror.begin() + Offset(iAt), iPart);
        attribute.insert(attribute.begin() + Offset(iAt), iPart);
        return true;
    }

    void Remove(int iAt)
    {
        m_isChanged = true;
        calls.push_back(Line("remove", iAt));
        if (!Fails("RemovePosition"))
            attribute.erase(attribute.begin() + Offset(iAt));
    }

    std::string Line(const char* iVerb, int iPosition) const
    {
        return std::string(iVerb)
            .append(" Owner.")
            .append(m_case.list)
            .append("[")
            .append(std::to_string(iPosition))
            .append("]");
    }

    bool Fails(const char* iOperation)
    {
        if (m_case.fault.operation != iOperation)
            return false;
        ++m_calls;
        return m_case.fault.forever ? m_calls >= m_case.fault.call : m_calls == m_case.fault.call;
    }

    bool Report(const char* iCall)
    {
        reports.push_back(FailedCall(iCall, "VYRCfdObjectAccess::SetList", m_case.fault.status));
        return false;
    }

    static int Offset(int iPosition) { return iPosition - 1; }
};

/// The same cases from the same seed on every platform, so no distribution of the standard library.
class CaseMaker
{
public:
    explicit CaseMaker(std::uint64_t iSeed) : m_random(iSeed) {}

    Case Make()
    {
        Case made;
        made.list = OneIn(2) ? "parts" : "references";
        made.stored = OneIn(2) ? Repetitive() : Distinct();
        for (int& entry : made.stored)
            if (OneIn(10))
                entry = Empty;
        made.wanted = OneIn(3) ? Distinct() : OneIn(2) ? Repetitive() : Edited(made.stored);
        if (!made.wanted.empty() && OneIn(20))
            made.wanted[Below(made.wanted.size())] = Empty;
        if (OneIn(3))
            made.fault = Fault();
        return made;
    }

private:
    std::size_t Below(std::size_t iBound) { return static_cast<std::size_t>(m_random() % iBound); }
    bool OneIn(std::size_t iNumber) { return Below(iNumber) == 0; }

    Sequence Repetitive()
    {
        Sequence made(Below(LongestList + 1));
        const std::size_t kinds = 1 + Below(4);
        for (int& entry : made)
            entry = static_cast<int>(Below(kinds));
        return made;
    }

    Sequence Distinct()
    {
        Sequence made;
        for (int part = 0; part < PoolSize; ++part)
            made.insert(made.begin() + static_cast<std::ptrdiff_t>(Below(made.size() + 1)), part);
        made.resize(Below(LongestList + 1));
        return made;
    }

    /// Something close to what is stored: the cases in which much stays in place.
    Sequence Edited(Sequence iStored)
    {
        std::erase(iStored, Empty);
        for (std::size_t edits = Below(3); edits > 0 && !iStored.empty(); --edits)
        {
            const std::size_t at = Below(iStored.size());
            if (OneIn(3))
                iStored.erase(iStored.begin() + static_cast<std::ptrdiff_t>(at));
            else if (OneIn(2))
                std::swap(iStored[at], iStored[Below(iStored.size())]);
            else
                iStored.insert(iStored.begin() + static_cast<std::ptrdiff_t>(at), static_cast<int>(Below(PoolSize)));
        }
        return iStored;
    }

    Planted Fault()
    {
        static constexpr const char* operations[] = {"MoveInPosition", "InsertAtPosition", "RemovePosition",
                                                     "ListObjects"};
        static constexpr HRESULT statuses[] = {E_FAIL, E_NOTIMPL, -7};
        return {operations[Below(4)], 1 + static_cast<int>(Below(3)), OneIn(2), statuses[Below(3)]};
    }

    std::mt19937_64 m_random;
};

bool HasRepetition(Sequence iSequence)
{
    std::erase(iSequence, Empty);
    std::sort(iSequence.begin(), iSequence.end());
    return std::adjacent_find(iSequence.begin(), iSequence.end()) != iSequence.end();
}

/// How often each kind of case came up. A generator that no longer makes one of them would prove nothing.
struct Tally
{
    int equal = 0;
    int moved = 0;
    int inserted = 0;
    int removed = 0;
    int failedMoves = 0;
    int failedInserts = 0;
    int errorCursors = 0;
    int listedNothing = 0;
    int repetitions = 0;
    /// Long enough for identities to be asked for, and without what they cannot be told of.
    int placedByIdentity = 0;
    int repeatedByIdentity = 0;

    void Add(const Case& iCase, const ReferenceScan& iScan)
    {
        const auto has = [&iScan](const char* iVerb) {
            return std::any_of(iScan.calls.begin(), iScan.calls.end(),
                               [iVerb](const std::string& iCall) { return iCall.starts_with(iVerb); });
        };
        equal += iScan.status == S_FALSE;
        moved += has("move");
        inserted += has("insert");
        removed += has("remove");
        listedNothing += iCase.fault.operation == "ListObjects" && iCase.fault.call == 1;
        repetitions += iScan.status >= 0 && HasRepetition(iCase.stored);
        const bool hasIdentities = iCase.stored.size() * iCase.wanted.size() > 16 &&
                                   std::find(iCase.stored.begin(), iCase.stored.end(), Empty) == iCase.stored.end();
        placedByIdentity += hasIdentities;
        repeatedByIdentity += hasIdentities && HasRepetition(iCase.stored);
        for (const Record& report : iScan.reports)
        {
            errorCursors += report.kind == VYRStandalone::Report::Kind::Assertion;
            failedMoves += report.text.find("MoveInPosition") != std::string::npos;
            failedInserts += report.text.find("InsertAtPosition") != std::string::npos;
        }
    }
};

class SetListScanTest : public ListFixture
{
protected:
    void SetUp() override
    {
        ListFixture::SetUp();
        for (int part = 0; part < PoolSize; ++part)
        {
            m_pool.push_back(Part(NameOf(part)));
            m_cursors.push_back(Cursor(m_pool.back()));
        }
    }

    void Store(const Case& iCase)
    {
        const ORXISpecAttrKey_var key = KeyOf(iCase.list.c_str());
        m_access->RemoveAll(key);
        int position = 0;
        for (const int part : iCase.stored)
        {
            m_access->InsertAtPosition(key, m_pool[static_cast<std::size_t>(std::max(part, 0))], ++position);
            if (part == Empty)
                m_access->SetSpecObject(key, NULL_var, position);
        }
    }

    Sequence Stored(const Case& iCase) const
    {
        const ORXISpecAttrKey_var key = KeyOf(iCase.list.c_str());
        Sequence stored;
        const int size = m_access->GetListSize(key);
        for (int position = 1; position <= size; ++position)
        {
            const ORXISpecObject_var entry = ORXISpecObject_var::Adopt(m_access->GetSpecObject(key, position));
            const auto found = std::find_if(m_pool.begin(), m_pool.end(), [&entry](const ORXISpecObject_var& iPart) {
                return iPart->IsEqual(entry) != 0;
            });
            stored.push_back(found == m_pool.end() ? Empty : static_cast<int>(found - m_pool.begin()));
        }
        return stored;
    }

    /// @return what differs from the reference; empty when nothing does
    std::string Compare(const Case& iCase, const ReferenceScan& iExpected, bool iTellsIdentities)
    {
        Store(iCase);
        std::vector<VYRCfdObjectAccess> wanted;
        wanted.reserve(iCase.wanted.size());
        for (const int part : iCase.wanted)
            wanted.push_back(part == Empty ? VYRCfdObjectAccess() : m_cursors[static_cast<std::size_t>(part)]);
        const VYRCfdObjectAccess cursor = At(iCase.list.c_str());

        if (!iCase.fault.operation.empty())
            MakeFail(iCase.fault.operation.c_str(), iCase.list.c_str(), iCase.fault.status, iCase.fault.call,
                     iCase.fault.forever ? 0 : 1);
        if (!iTellsIdentities)
            MakeFail("QueryInterface", "ORXIComponentIdentity", E_NOINTERFACE, 1, 0);
        VYRStandalone::CallRecorder recorder;
        const HRESULT status = cursor.SetList(wanted);
        const Calls calls = recorder.Take();
        VYRStandalone::ClearFaults();
        const Records reports = Reported();
        const Sequence attribute = Stored(iCase);

        if (status == iExpected.status && calls == iExpected.calls && reports == iExpected.reports &&
            attribute == iExpected.attribute)
            return {};
        std::ostringstream text;
        text << (iTellsIdentities ? "with" : "without") << " identities, list " << iCase.list << "\nstored "
             << testing::PrintToString(iCase.stored) << "\nwanted " << testing::PrintToString(iCase.wanted)
             << "\nfault " << iCase.fault.operation << ", call " << iCase.fault.call
             << (iCase.fault.forever ? " and all behind" : "") << ", status " << iCase.fault.status << "\nstatus "
             << status << ", expected " << iExpected.status << "\ncalls " << testing::PrintToString(calls)
             << "\nexpected " << testing::PrintToString(iExpected.calls) << "\nreports "
             << testing::PrintToString(reports) << "\nexpected " << testing::PrintToString(iExpected.reports)
             << "\nafterwards " << testing::PrintToString(attribute) << "\nexpected "
             << testing::PrintToString(iExpected.attribute);
        return text.str();
    }

private:
    std::vector<ORXISpecObject_var> m_pool;
    std::vector<VYRCfdObjectAccess> m_cursors;
};

/// The variable takes a seed that an earlier run printed.
std::uint64_t Seed()
{
    const char* given = std::getenv("VYRCFD_SETLIST_SEED");
    return given != nullptr ? std::strtoull(given, nullptr, 10) : 20240617;
}

TEST_F(SetListScanTest, HostCalls_AreThoseOfThePlainScan_InOrder)
{
    const std::uint64_t seed = Seed();
    CaseMaker maker(seed);
    Tally tally;
    int failures = 0;
    for (int number = 0; number < Cases && failures < MostFailures; ++number)
    {
        const Case made = maker.Make();
        const ReferenceScan expected(made);
        for (const bool tellsIdentities : {true, false})
        {
            const std::string difference = Compare(made, expected, tellsIdentities);
            if (difference.empty())
                continue;
            ++failures;
            ADD_FAILURE() << "case " << number << " of VYRCFD_SETLIST_SEED=" << seed << "\n" << difference;
        }
        // The purpose of the scan, which the reference has to meet as well.
        if (expected.status >= 0 && made.fault.operation.empty())
        {
            ASSERT_EQ(expected.attribute, made.wanted) << "case " << number << " of VYRCFD_SETLIST_SEED=" << seed;
        }
        tally.Add(made, expected);
    }
    EXPECT_GT(tally.equal, Cases / 50);
    EXPECT_GT(tally.moved, Cases / 5);
    EXPECT_GT(tally.inserted, Cases / 5);
    EXPECT_GT(tally.removed, Cases / 5);
    EXPECT_GT(tally.failedMoves, Cases / 200);
    EXPECT_GT(tally.failedInserts, Cases / 200);
    EXPECT_GT(tally.errorCursors, Cases / 100);
    EXPECT_GT(tally.listedNothing, Cases / 200);
    EXPECT_GT(tally.repetitions, Cases / 5);
    EXPECT_GT(tally.placedByIdentity, Cases / 5);
    EXPECT_GT(tally.repeatedByIdentity, Cases / 20);
}
} // namespace
