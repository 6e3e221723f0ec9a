#include "VYRCfdListArrangement.h"

#include <algorithm>

#include "VYRCfdChecks.h"

namespace
{
/// So many comparisons cost no more than asking for identities.
constexpr std::size_t FewComparisons = 16;
/// So many entries ahead an object is fetched: the processor does not look through so many calls itself.
constexpr std::size_t Ahead = 16;
} // namespace

VYRCfdListArrangement::VYRCfdListArrangement(const char* iFunction, const ORXISpecAttrAccess_var& iAttr,
                                             const ORXISpecAttrKey_var& iKey,
                                             const std::vector<VYRCfdObjectAccess>& iWanted)
    : m_function(iFunction), _spAttr(iAttr), _spKey(iKey), iObjects(iWanted), pVals(iAttr->ListObjects(iKey, 0))
{
    if (pVals == nullptr)
        pVals = std::make_unique<ORXListValORXBaseUnknown_var>();
    m_size = pVals->Size();
}

HRESULT VYRCfdListArrangement::Go()
{
    VYRCFD_PASS(Identify() ? PlaceByIdentity() : PlaceByScan());
    for (int position = m_size; position > static_cast<int>(iObjects.size()); --position)
    {
        m_isChanged = true;
        _spAttr->RemovePosition(_spKey, position);
    }
    return m_isChanged ? S_OK : S_FALSE;
}

bool VYRCfdListArrangement::Identify()
{
    const std::size_t size = static_cast<std::size_t>(m_size);
    const std::size_t wanted = iObjects.size();
    if (size * wanted <= FewComparisons)
        return false;
    const ORXIComponentIdentity_var spIdentity = _spAttr;
    if (!spIdentity)
        return false;

    m_tail = std::make_unique<VYRCfdListTail>(size);
    const ORXListValORXBaseUnknown_var& stored = *pVals;
    // Side by side: an object that stands in its place already is then visited once, which is what long lists cost.
    for (std::size_t at = 0; at < std::max(size, wanted); ++at)
    {
        const void* present = nullptr;
        if (at < size)
        {
            if (at + Ahead < size)
                __builtin_prefetch(stored[static_cast<int>(at + Ahead) + 1].Pointer());
            present = spIdentity->IdentityOf(stored[static_cast<int>(at) + 1]);
            if (present == nullptr)
                return false;
            m_tail->Append(present);
        }
        if (at >= wanted || at > CountWanted())
            continue;
        // Behind a cursor without an object nothing is looked at any more.
        const ORXISpecAttrAccess_var& object = iObjects[at]._spAttr;
        if (!object)
            continue;
        const void* const identity = spIdentity->IdentityOf(object);
        if (identity == nullptr)
            return false;
        if (identity == present && at == m_inPlace)
        {
            ++m_inPlace;
            continue;
        }
        if (m_wanted.empty())
            m_wanted.reserve(wanted - at);
        m_wanted.push_back(identity);
    }
    m_tail->Index();
    return true;
}

HRESULT VYRCfdListArrangement::PlaceByIdentity()
{
    int i = 0;
    // An object that stands in its place, and nowhere behind it, is left alone.
    if (!m_tail->HasRepeated())
    {
        i = static_cast<int>(m_inPlace);
        m_tail->PlaceFront(m_inPlace);
    }
    const int wanted = static_cast<int>(CountWanted());
    while (i < wanted)
    {
        const std::size_t at = static_cast<std::size_t>(i);
        const void* const identity = at < m_inPlace ? m_tail->IdentityOf(at) : m_wanted[at - m_inPlace];
        const int object = m_tail->Find(identity);
        ++i;
        if (object == VYRCfdListTail::None || !m_tail->Holds(object))
        {
            VYRCFD_PASS(Insert(iObjects[static_cast<std::size_t>(i) - 1].Self(), i));
            continue;
        }
        for (int moves = m_tail->Place(object); moves > 0; --moves)
            VYRCFD_PASS(Move(VYRCfdListTail::Position(object), i));
    }
    return CheckWanted(CountWanted() == iObjects.size());
}

HRESULT VYRCfdListArrangement::PlaceByScan()
{
    int i = 0;
    for (const VYRCfdObjectAccess& cursor : iObjects)
    {
        const ORXBaseUnknown_var wanted = cursor.Self();
        VYRCFD_PASS(CheckWanted(!!wanted));
        VYRCFD_PASS(Scan(wanted, ++i));
    }
    return S_OK;
}

HRESULT VYRCfdListArrangement::Scan(const ORXBaseUnknown_var& iWanted, int iPlace)
{
    bool found = false;
    // The scan goes on behind a hit: a second occurrence of the object is moved to the place as well.
    for (int position = iPlace; position <= pVals->Size(); ++position)
    {
        if (iWanted->IsEqual((*pVals)[position]) == 0)
            continue;
        found = true;
        if (position == iPlace)
            continue;
        VYRCFD_PASS(Move(position, iPlace));
        pVals->RemovePosition(position);
        pVals->InsertAt(iPlace, iWanted);
    }
    if (found)
        return S_OK;
    VYRCFD_PASS(Insert(iWanted, iPlace));
    pVals->InsertAt(iPlace, iWanted);
    return S_OK;
}

// ---- checks and writes of both roads --------------------------------------------------------------------------------

HRESULT VYRCfdListArrangement::CheckWanted(bool iIsObject) const
{
    VYRCFD_ASSERT_TEXT(m_function, "iObjects[i-1].Self()", iIsObject);
    return S_OK;
}

HRESULT VYRCfdListArrangement::Move(int j, int i)
{
    m_isChanged = true;
    VYRCFD_CHECK_FOR(m_function, _spAttr->MoveInPosition(_spKey, (*pVals)[j], i));
    return S_OK;
}

HRESULT VYRCfdListArrangement::Insert(const ORXBaseUnknown_var& iWanted, int i)
{
    m_isChanged = true;
    const ORXISpecObject_var spSpec = iWanted;
    VYRCFD_ASSERT_FOR(m_function, spSpec);
    VYRCFD_CHECK_FOR(m_function, _spAttr->InsertAtPosition(_spKey, spSpec, i));
    ++m_size;
    return S_OK;
}
