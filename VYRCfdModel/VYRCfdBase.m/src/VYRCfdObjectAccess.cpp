#include "VYRCfdObjectAccess.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

#include "ORXCkeGlobalFunctions.h"
#include "ORXIAlias.h"
#include "ORXISimBCDataTableColumn.h"
#include "ORXKeySetVYRCfdBase.h"
#include "ORXOmxInternals.h"
#include "ORXSpecAttrShortcuts.h"
#include "VYRCfdChecks.h"
#include "VYRCfdListArrangement.h"
#include "VYRCfdObjectCondition.h"
#include "VYRIFldIdentifier.h"

namespace
{
/// The module makes no difference between an attribute that owns its object and one that only refers to it.
bool IsObjectType(int iType)
{
    return iType == tk_component || iType == tk_specobject;
}

/// An error that is navigated further shows in the debug trace, where a chain is most easily lost.
[[gnu::noinline]] void TraceError(const ORXUnicodeString& iError)
{
    if (VYRCfd::IsActive(VYRCfdTraceManager::_Debug))
        VYRCfdTraceManager::_Debug->TraPrint(140, "ERROR: %s\n", iError.CastToCharPtr());
}

/// Made once, since the walk of a path looks for it at each segment.
const ORXUnicodeString& Separator()
{
    static const ORXUnicodeString separator("/");
    return separator;
}

/// Cuts off the segment of a path that begins at a character. @param iSeparator where it ends; negative for at the
/// path's end. @param oNext where the next one begins: at the path's end when nothing follows
/// @return S_OK, there is no other answer
HRESULT CutSegment(const ORXUnicodeString& iPath, int iBegin, int iSeparator, ORXUnicodeString& oSegment, int& oNext)
{
    const int length = iPath.GetLengthInChar();
    const int end = iSeparator < 0 ? length : iSeparator;
    oSegment = iPath.SubString(iBegin, end - iBegin);
    oNext = std::min(end + 1, length);
    return S_OK;
}

/// The host's; null where it has none, and until the library is loaded.
ORXSpecAttrShortcuts* const hostShortcuts = ORXGetSpecAttrShortcuts != nullptr ? ORXGetSpecAttrShortcuts() : nullptr;

/// Whether all characters are single bytes, of which none is 0: positions are offsets then, and a text may be cut at
/// each of them.
bool IsPlain(const ORXUnicodeString& iText)
{
    const char* const text = iText;
    const std::size_t length = std::strlen(text);
    unsigned char bits = 0;
    for (std::size_t at = 0; at < length; ++at)
        bits |= static_cast<unsigned char>(text[at]);
    return bits < 0x80 && length == static_cast<std::size_t>(iText.GetLengthInChar());
}
} // namespace

// ---- construction and comparison ------------------------------------------------------------------------------------

VYRCfdObjectAccess::VYRCfdObjectAccess() : _error("Null initialization b")
{
    VYRCFD_ENTER(50);
}

VYRCfdObjectAccess::VYRCfdObjectAccess(const ORXBaseUnknown_var& iObject) : _spAttr(iObject)
{
    VYRCFD_ENTER(50);
    if (!_spAttr)
        _error = "Null initialization c";
}

VYRCfdObjectAccess::VYRCfdObjectAccess(const ORXUnicodeString& iError) : _error(iError)
{
    VYRCFD_ENTER(50);
}

VYRCfdObjectAccess::VYRCfdObjectAccess(ORXISpecAttrAccess_var iAttr, ORXISpecAttrKey_var iKey)
    : _spAttr(std::move(iAttr)), _spKey(std::move(iKey))
{
    VYRCFD_ENTER(50);
}

VYRCfdObjectAccess::VYRCfdObjectAccess(ORXSpecAttrPlace&& ioPlace)
    : _spAttr(ORXISpecAttrAccess_var::Adopt(std::exchange(ioPlace.object, nullptr))),
      _spKey(ORXISpecAttrKey_var::Adopt(std::exchange(ioPlace.key, nullptr)))
{
}

void VYRCfdObjectAccess::TraceCopy()
{
    const VYRFeaIndentedTraceManager scope("VYRCfdObjectAccess::VYRCfdObjectAccess", __FILE__, __LINE__,
                                           VYRCfd::ScopeChannel(50), 50);
}

void VYRCfdObjectAccess::TraceEnd()
{
    const VYRFeaIndentedTraceManager scope("VYRCfdObjectAccess::~VYRCfdObjectAccess", __FILE__, __LINE__,
                                           VYRCfd::ScopeChannel(50), 50);
}

VYRCfdObjectAccess& VYRCfdObjectAccess::operator=(const VYRCfdObjectAccess& iOther)
{
    VYRCFD_ENTER(30);
    _spAttr = iOther._spAttr;
    _error = iOther._error;
    _spKey = iOther._spKey;
    return *this;
}

VYRCfdObjectAccess& VYRCfdObjectAccess::operator=(const ORXBaseUnknown_var& iObject)
{
    VYRCFD_ENTER(30);
    _spAttr = iObject;
    _spKey = NULL_var;
    // The argument is tested and not the cast: a component without attribute access gives an empty cursor.
    _error = !iObject ? "Null initialization a" : "";
    return *this;
}

bool VYRCfdObjectAccess::operator!() const
{
    return IsNull();
}

bool VYRCfdObjectAccess::IsNull() const
{
    if (!_spAttr)
        return true;
    if (!_spKey)
        return false;
    return _spAttr->HasAttribute(_spKey) == ORXFalse;
}

bool VYRCfdObjectAccess::HasError() const
{
    return !_error.IsEmpty();
}

ORXUnicodeString VYRCfdObjectAccess::GetError() const
{
    return _error;
}

bool VYRCfdObjectAccess::operator==(const VYRCfdObjectAccess& iOther) const
{
    if (!_spAttr)
        return !iOther._spAttr;
    if (_spAttr->IsEqual(iOther._spAttr) == 0)
        return false;
    if (!_spKey)
        return !iOther._spKey;
    return _spKey->IsEqual(iOther._spKey) != 0;
}

bool VYRCfdObjectAccess::operator!=(const VYRCfdObjectAccess& iOther) const
{
    return !operator==(iOther);
}

ORXBaseUnknown_var VYRCfdObjectAccess::Self() const
{
    return _spAttr;
}

VYRCfdObjectAccess::operator ORXBaseUnknown_var()
{
    return Self();
}

VYRCfdObjectAccess::operator ORXBaseUnknown*()
{
    return _spAttr.Pointer();
}

ORXISpecAttrAccess_var VYRCfdObjectAccess::Access() const
{
    return _spAttr;
}

// ---- navigation -----------------------------------------------------------------------------------------------------

// Each link of a chain comes through here, and the calls between the steps of one cost more than the steps: they are
// made one function.

[[gnu::always_inline]] inline VYRCfdObjectAccess VYRCfdObjectAccess::ObjectAt(ORXISpecAttrKey* iKey, int iIndex) const
{
    return VYRCfdObjectAccess(ORXBaseUnknown_var(ORXISpecObject_var::Adopt(_spAttr->GetSpecObject(iKey, iIndex))));
}

inline ORXSpecAttrShortcuts* VYRCfdObjectAccess::Shortcuts() const
{
    // While scopes are shown, each single operation has its own.
    return HasError() || !_spAttr || IsTraced() ? nullptr : hostShortcuts;
}

VYRCfdObjectAccess VYRCfdObjectAccess::Get(ORXISpecAttrKey* iKey, int iIndex) const
{
    ORXSpecAttrPlace place;
    if (ORXSpecAttrShortcuts* const shortcuts = iIndex == 0 && iKey != nullptr ? Shortcuts() : nullptr)
        if (shortcuts->Step(_spAttr, iKey, place))
            return VYRCfdObjectAccess(std::move(place));
    VYRCFD_ENTER(30);
    if (HasError())
        return VYRCfdObjectAccess(_error);
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    if (iKey == nullptr)
        return VYRCfdObjectAccess("Null key");

    const int type = iKey->GetType();
    if (type != tk_list)
    {
        if (iIndex >= 1)
            return VYRCfdObjectAccess(iKey->GetName() + " not a list");
        if (IsObjectType(type))
            return ObjectAt(iKey, 0);
        return VYRCfdObjectAccess(_spAttr, ORXISpecAttrKey_var::Share(iKey));
    }
    if (iIndex < 1)
        return VYRCfdObjectAccess(_spAttr, ORXISpecAttrKey_var::Share(iKey));
    if (!IsObjectType(iKey->GetListType()))
        return VYRCfdObjectAccess(iKey->GetName() + " not an object");
    return ObjectAt(iKey, iIndex);
}

[[gnu::flatten]] VYRCfdObjectAccess VYRCfdObjectAccess::Get(VYRCfdKeyFunction iKeyFunction, int iIndex) const
{
    // With shortcuts to take, nobody looks at scopes.
    if (Shortcuts() != nullptr)
        return Get(iKeyFunction(_spAttr), iIndex);
    VYRCFD_ENTER(30);
    if (HasError())
    {
        TraceError(_error);
        return VYRCfdObjectAccess(_error);
    }
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    return Get(iKeyFunction(_spAttr), iIndex);
}

VYRCfdObjectAccess VYRCfdObjectAccess::Get(const ORXUnicodeString& iName, int iIndex) const
{
    VYRCFD_ENTER(30);
    if (HasError())
        return VYRCfdObjectAccess(_error);
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(_spAttr->GetAttrKey(iName));
    if (!spKey)
        return VYRCfdObjectAccess("No attribute " + iName);
    return Get(spKey.Pointer(), iIndex);
}

VYRCfdObjectAccess VYRCfdObjectAccess::Get(const ORXUnicodeString& iName) const
{
    const char* const name = iName;
    ORXSpecAttrPlace place;
    if (ORXSpecAttrShortcuts* const shortcuts = !_spKey ? Shortcuts() : nullptr)
        if (shortcuts->Step(_spAttr, name, std::strlen(name), place))
            return VYRCfdObjectAccess(std::move(place));
    VYRCFD_ENTER(30);
    if (HasError())
        return VYRCfdObjectAccess(_error);
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    return !_spKey ? GetOnObject(iName) : GetInList(iName);
}

VYRCfdObjectAccess VYRCfdObjectAccess::GetOnObject(const ORXUnicodeString& iName) const
{
    // An attribute wins over every other meaning of the name.
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(_spAttr->GetAttrKey(iName));
    if (!!spKey)
        return Get(spKey.Pointer(), 0);

    if (IsCurrentChoice(iName))
        return Get(VYRCFDBASE(Choice, Data), 0);

    if (!(iName == "SonsList"))
    {
        const VYRCfdObjectAccess sons = Get("SonsList");
        if (!sons.IsNull())
            return sons.Get(iName);
    }
    return VYRCfdObjectAccess("No attribute " + iName);
}

[[gnu::noinline]] bool VYRCfdObjectAccess::IsCurrentChoice(const ORXUnicodeString& iName) const
{
    static const ORXUnicodeString choiceType("VYRCfdChoice");
    const ORXISpecObject_var spSpec = _spAttr;
    if (!spSpec || spSpec->IsSubTypeOf(choiceType) == ORXFalse)
        return false;
    ORXUnicodeString value;
    const ORXICkeParm_var spParm = Get(VYRCFDBASE(Choice, value), 0).GetParm();
    if (!!spParm)
    {
        const ORXIValue_var spVal = spParm->GetValue();
        if (!!spVal)
            value = spVal->AsString();
    }
    return value == iName;
}

VYRCfdObjectAccess VYRCfdObjectAccess::GetInList(const ORXUnicodeString& iName) const
{
    if (_spKey->GetType() != tk_list)
        return VYRCfdObjectAccess("Get by name on a non-list");
    const int size = _spAttr->GetListSize(_spKey);
    if (!IsObjectType(_spKey->GetListType()))
        return VYRCfdObjectAccess(_spKey->GetName() + "Not a list of objects");

    VYRCfdObjectAccess byName;
    VYRCfdObjectAccess byType;
    for (int i = 1; i <= size; ++i)
    {
        const VYRCfdObjectAccess entry = ObjectAt(_spKey, i);
        // The display name ends the search: nothing behind it can beat it.
        if (entry.GetName() == iName)
            return entry;
        if (entry.IsNull())
            ORXOmx::Internals::NullPointerAssertion();
        if (byName.IsNull())
        {
            const ORXISpecObject_var spSpec = entry._spAttr;
            if (!!spSpec && spSpec->GetName() == iName)
                byName = entry;
        }
        if (byType.IsNull() && entry.GetType() == iName)
            byType = entry;
    }
    if (!byName.IsNull())
        return byName;
    if (!byType.IsNull())
        return byType;

    int number = 0;
    if (iName.ConvertToNum(&number, "%d") != 0 && number >= 1 && number <= size)
        return ObjectAt(_spKey, number);
    return VYRCfdObjectAccess("No matching object to " + iName);
}

VYRCfdObjectAccess VYRCfdObjectAccess::Get(int iIndex) const
{
    VYRCFD_ENTER(25);
    if (HasError())
        return VYRCfdObjectAccess(_error);
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    if (!_spKey)
        return VYRCfdObjectAccess("Object is not a list");
    if (_spKey->GetType() != tk_list)
        return VYRCfdObjectAccess("Get by index on a non-list");
    const int listType = _spKey->GetListType();
    const int size = _spAttr->GetListSize(_spKey);
    if (!IsObjectType(listType))
        return VYRCfdObjectAccess(_spKey->GetName() + "Not a list of objects");
    if (iIndex >= 1 && iIndex <= size)
        return ObjectAt(_spKey, iIndex);
    return VYRCfdObjectAccess("Index out of bounds");
}

VYRCfdObjectAccess VYRCfdObjectAccess::operator[](const ORXUnicodeString& iName) const
{
    return Get(iName);
}

VYRCfdObjectAccess VYRCfdObjectAccess::operator[](int iIndex) const
{
    return Get(iIndex);
}

VYRCfdObjectAccess VYRCfdObjectAccess::operator[](ORXISpecAttrKey* iKey) const
{
    return Get(iKey, 0);
}

[[gnu::flatten]] VYRCfdObjectAccess VYRCfdObjectAccess::operator[](VYRCfdKeyFunction iKeyFunction) const
{
    return Get(iKeyFunction, 0);
}

VYRCfdObjectAccess VYRCfdObjectAccess::Ref(ORXISpecAttrKey* iKey) const
{
    VYRCFD_ENTER(25);
    if (HasError())
        return VYRCfdObjectAccess(_error);
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    if (iKey == nullptr)
        return VYRCfdObjectAccess("Null key");
    if (iKey->GetType() == tk_list)
        return VYRCfdObjectAccess(iKey->GetName() + " is a list");
    return VYRCfdObjectAccess(_spAttr, ORXISpecAttrKey_var::Share(iKey));
}

VYRCfdObjectAccess VYRCfdObjectAccess::Ref(const ORXUnicodeString& iName) const
{
    VYRCFD_ENTER(25);
    if (HasError())
        return VYRCfdObjectAccess(_error);
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(_spAttr->GetAttrKey(iName));
    return Ref(spKey.Pointer());
}

VYRCfdObjectAccess VYRCfdObjectAccess::Ref(VYRCfdKeyFunction iKeyFunction) const
{
    VYRCFD_ENTER(25);
    if (HasError())
    {
        TraceError(_error);
        return VYRCfdObjectAccess(_error);
    }
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    return Ref(iKeyFunction(_spAttr));
}

HRESULT VYRCfdObjectAccess::SplitPath(const ORXUnicodeString& iPath, ORXUnicodeString& oHead, ORXUnicodeString& oTail)
{
    // The head is written last, so that a caller may pass its path as one of the two.
    ORXUnicodeString head;
    int next = 0;
    const HRESULT status = CutSegment(iPath, 0, iPath.SearchSubString(Separator(), 0, 1), head, next);
    if (next < iPath.GetLengthInChar())
        oTail = iPath.SubString(next, iPath.GetLengthInChar() - next);
    oHead = std::move(head);
    return status;
}

/// Room for the cursor at which the walk of a path stands. It is constructed where it stays, so that nothing is copied.
class VYRCfdObjectAccess::Place
{
public:
    Place() {}
    ~Place() { Clear(); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    const VYRCfdObjectAccess& Move(const VYRCfdObjectAccess& iFrom, const ORXUnicodeString& iName)
    {
        Clear();
        ::new (static_cast<void*>(&m_cursor)) VYRCfdObjectAccess(iFrom.Get(iName));
        m_isFull = true;
        return m_cursor;
    }

    const VYRCfdObjectAccess& Move(ORXSpecAttrPlace&& ioPlace)
    {
        Clear();
        ::new (static_cast<void*>(&m_cursor)) VYRCfdObjectAccess(std::move(ioPlace));
        m_isFull = true;
        return m_cursor;
    }

private:
    void Clear()
    {
        if (m_isFull)
            m_cursor.~VYRCfdObjectAccess();
        m_isFull = false;
    }

    bool m_isFull = false;
    union
    {
        VYRCfdObjectAccess m_cursor;
    };
};

bool VYRCfdObjectAccess::FollowPath(const ORXUnicodeString& iPath, int& oBegin, ORXSpecAttrPlace& oReached) const
{
    ORXSpecAttrShortcuts* const shortcuts = Shortcuts();
    if (shortcuts == nullptr || !!_spKey || !IsPlain(iPath))
        return false;
    const char* const path = iPath;
    const char* const end = path + iPath.GetLengthInChar();
    const char* name = path;
    ORXISpecAttrAccess* from = _spAttr.Pointer();
    while (name != end && oReached.key == nullptr)
    {
        const void* const separator = std::memchr(name, '/', static_cast<std::size_t>(end - name));
        const char* const behind = separator != nullptr ? static_cast<const char*>(separator) : end;
        if (behind == name)
            break;
        ORXSpecAttrPlace next;
        if (!shortcuts->Step(from, name, static_cast<std::size_t>(behind - name), next))
            break;
        // The object that was left is let go only now that the next one is held.
        const ORXISpecAttrAccess_var spLeft = ORXISpecAttrAccess_var::Adopt(oReached.object);
        oReached = next;
        from = next.object;
        name = behind != end ? behind + 1 : end;
    }
    oBegin = static_cast<int>(name - path);
    return oReached.object != nullptr;
}

VYRCfdObjectAccess VYRCfdObjectAccess::GetByPath(const ORXUnicodeString& iPath) const
{
    // A loop and not a recursion: a path may be as long as its file. The cursor of a segment is made in place, while
    // the one before it is still needed, so two places serve in turn and nothing is copied. What has been walked stays
    // in front until it is long: a copy of the rest at each segment would cost more, and so does counting characters
    // from the beginning of a long path.
    constexpr int LongestWalked = 1024;
    Place places[2];
    const VYRCfdObjectAccess* current = this;
    ORXUnicodeString rest;
    const ORXUnicodeString* path = &iPath;
    int begin = 0;
    ORXSpecAttrPlace reached;
    if (FollowPath(iPath, begin, reached))
    {
        if (begin == iPath.GetLengthInChar())
            return VYRCfdObjectAccess(std::move(reached));
        current = &places[1].Move(std::move(reached));
    }
    for (int place = 0;; place = 1 - place)
    {
        VYRCFD_ENTER(25);
        if (current->HasError())
            return VYRCfdObjectAccess(current->_error);
        if (!current->_spAttr)
            return VYRCfdObjectAccess("Null object");
        ORXUnicodeString head;
        int next = 0;
        if (CutSegment(*path, begin, path->FindPosition(Separator(), begin), head, next) < 0)
            return VYRCfdObjectAccess("Invalid path: " + path->SubString(begin, path->GetLengthInChar() - begin));
        if (head.IsEmpty())
            return *current;
        if (next >= path->GetLengthInChar())
            return current->Get(head);
        current = &places[place].Move(*current, head);
        begin = next;
        if (begin > LongestWalked)
        {
            rest = path->SubString(begin, path->GetLengthInChar() - begin);
            path = &rest;
            begin = 0;
        }
    }
}

VYRCfdObjectAccess VYRCfdObjectAccess::GetParent() const
{
    if (HasError())
        return VYRCfdObjectAccess(_error);
    if (!_spAttr)
        return VYRCfdObjectAccess("Null object");
    if (!!_spKey)
        return VYRCfdObjectAccess(ORXBaseUnknown_var(_spAttr));
    const ORXISpecObject_var spSpec = _spAttr;
    if (!spSpec)
        return VYRCfdObjectAccess("Null object");
    return VYRCfdObjectAccess(ORXBaseUnknown_var(ORXISpecObject_var::Adopt(spSpec->GetOwner())));
}

VYRCfdObjectAccess VYRCfdObjectAccess::ApplyCondition(const ORXUnicodeString& iCondition) const
{
    VYRCFD_ENTER(25);
    // The one link that replaces an earlier error: whoever asks for a condition hears that it does not hold.
    if (VYRCfdObjectCondition(*this, iCondition))
        return *this;
    return VYRCfdObjectAccess("Condition not met");
}

ORXUnicodeString VYRCfdObjectAccess::GetName() const
{
    if (HasError())
        return ORXUnicodeString();
    if (!!_spKey)
        return _spKey->GetName();
    const ORXIAlias_var spAlias = _spAttr;
    return !spAlias ? ORXUnicodeString() : spAlias->GetAlias();
}

ORXUnicodeString VYRCfdObjectAccess::GetID() const
{
    ORXUnicodeString identifier;
    if (HasError())
        return identifier;
    const VYRIFldIdentifier_var spIdentifier = _spAttr;
    if (!!spIdentifier)
        spIdentifier->GetIdentifier(identifier);
    return identifier;
}

ORXUnicodeString VYRCfdObjectAccess::GetType() const
{
    if (HasError() || !!_spKey)
        return ORXUnicodeString();
    const ORXISpecObject_var spSpec = _spAttr;
    return !spSpec ? ORXUnicodeString() : spSpec->GetType();
}

bool VYRCfdObjectAccess::IsSubTypeOf(const ORXUnicodeString& iType) const
{
    if (HasError() || !!_spKey)
        return false;
    const ORXISpecObject_var spSpec = _spAttr;
    return !!spSpec && spSpec->IsSubTypeOf(iType) != ORXFalse;
}

ORXICkeParm_var VYRCfdObjectAccess::GetParm() const
{
    VYRCFD_ENTER(25);
    if (HasError() || !_spAttr || !_spKey)
        return NULL_var;
    return ORXCke_GetParm(_spAttr, _spKey, 1);
}

// ---- checks that operations share -----------------------------------------------------------------------------------
// clang-format off

HRESULT VYRCfdObjectAccess::CheckNoError(const char* iFunction) const
{
    if (HasError())
        VYRCFD_FAIL_FOR(iFunction, _error);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::CheckObject(const char* iFunction) const
{
    VYRCFD_PASS(CheckNoError(iFunction));
    VYRCFD_ASSERT_FOR(iFunction, _spAttr);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::CheckAttribute(const char* iFunction) const
{
    VYRCFD_PASS(CheckObject(iFunction));
    VYRCFD_ASSERT_FOR(iFunction, _spKey);
    return S_OK;
}

/// Where a list operation needs an attribute cursor, a cursor without one fails in silence.
HRESULT VYRCfdObjectAccess::CheckStanding(const char* iFunction) const
{
    VYRCFD_PASS(CheckNoError(iFunction));
    return !_spAttr || !_spKey ? E_FAIL : S_OK;
}

HRESULT VYRCfdObjectAccess::CheckObjectList(const char* iFunction) const
{
    const int type = _spKey->GetType();
    VYRCFD_ASSERT_FOR(iFunction, type == tk_list);
    const int listType = _spKey->GetListType();
    VYRCFD_ASSERT_FOR(iFunction, listType == tk_component || listType == tk_specobject);
    return S_OK;
}

/// Readers look at the index before the list, writers the other way round; a bad call is reported accordingly.
HRESULT VYRCfdObjectAccess::CheckListRead(const char* iFunction, int index) const
{
    VYRCFD_PASS(CheckAttribute(iFunction));
    VYRCFD_ASSERT_FOR(iFunction, index > 0);
    VYRCFD_ASSERT_FOR(iFunction, _spKey->GetType() == tk_list);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::CheckListWrite(const char* iFunction, int index) const
{
    VYRCFD_PASS(CheckAttribute(iFunction));
    VYRCFD_ASSERT_FOR(iFunction, _spKey->GetType() == tk_list);
    VYRCFD_ASSERT_FOR(iFunction, index > 0);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::CheckSize(const char* iFunction, int index) const
{
    const int size = _spAttr->GetListSize(_spKey);
    VYRCFD_ASSERT_FOR(iFunction, index <= size);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::ParameterValue(const char* iFunction, ORXIValue_var& oValue) const
{
    const ORXICkeParm_var spParm = GetParm();
    VYRCFD_ASSERT_FOR(iFunction, spParm);
    const ORXICkeType_var spType = spParm->GetType();
    VYRCFD_ASSERT_FOR(iFunction, !!spType);
    ORXIValue_var spVal = spParm->GetValue();
    VYRCFD_ASSERT_FOR(iFunction, spVal);
    oValue = std::move(spVal);
    return S_OK;
}

ORXICkeType_var VYRCfdObjectAccess::AttributeType(const char* iFunction) const
{
    if (CheckAttribute(iFunction) < 0)
        return NULL_var;
    return ParameterType(iFunction);
}

ORXICkeType_var VYRCfdObjectAccess::ParameterType(const char* iFunction) const
{
    ORXICkeType_var answer;
    const auto ask = [&]() -> HRESULT {
        const ORXICkeParm_var spParm = GetParm();
        VYRCFD_ASSERT_FOR(iFunction, spParm);
        ORXICkeType_var spType = spParm->GetType();
        VYRCFD_ASSERT_FOR(iFunction, !!spType);
        answer = std::move(spType);
        return S_OK;
    };
    ask();
    return answer;
}

// ---- scalars --------------------------------------------------------------------------------------------------------

HRESULT VYRCfdObjectAccess::GetPlainString(ORXUnicodeString& oValue) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    if (_spKey->GetType() != tk_string)
        VYRCFD_FAIL("Not a string");
    oValue = _spAttr->GetString(_spKey, 0);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetPlainString(const ORXUnicodeString& iValue) const
{
    VYRCFD_ENTER(20);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    VYRCFD_ASSERT(_spKey->GetType() == tk_string);
    return _spAttr->SetString(_spKey, iValue, 0);
}

HRESULT VYRCfdObjectAccess::GetString(ORXUnicodeString& oValue) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    ORXIValue_var spVal;
    VYRCFD_PASS(ParameterValue(VYRCFD_FUNCTION, spVal));
    oValue = spVal->AsString();
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetString(ORXUnicodeString& oValue, int index) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckListRead(VYRCFD_FUNCTION, index));
    VYRCFD_ASSERT(_spKey->GetListType() == tk_string);
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    oValue = _spAttr->GetString(_spKey, index);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetString(const ORXUnicodeString& iValue) const
{
    VYRCFD_ENTER(20);
    const ORXICkeParm_var spParm = GetParm();
    VYRCFD_ASSERT(spParm);
    const ORXICkeType_var spType = spParm->GetType();
    VYRCFD_ASSERT(!!spType);
    if (spType->IsaString())
        spParm->Valuate(iValue);
    else if (spType->IsaReal())
        spParm->ValuateFromString(iValue);
    else
        VYRCFD_FAIL("SetString on a non-string/real");
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetString(const ORXUnicodeString& iValue, int index) const
{
    VYRCFD_ENTER(20);
    VYRCFD_PASS(CheckListWrite(VYRCFD_FUNCTION, index));
    VYRCFD_ASSERT(_spKey->GetListType() == tk_string);
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    return _spAttr->SetString(_spKey, iValue, index);
}

HRESULT VYRCfdObjectAccess::GetInteger(int& oValue) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    ORXIValue_var spVal;
    VYRCFD_PASS(ParameterValue(VYRCFD_FUNCTION, spVal));
    oValue = spVal->AsInteger();
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetInteger(int& oValue, int index) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckListRead(VYRCFD_FUNCTION, index));
    VYRCFD_ASSERT((_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum));
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    oValue = _spAttr->GetInteger(_spKey, index);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetInteger(int iValue) const
{
    VYRCFD_ENTER(20);
    const ORXICkeParm_var spParm = GetParm();
    VYRCFD_ASSERT(spParm);
    VYRCFD_ASSERT(IsInteger());
    spParm->Valuate(iValue);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetInteger(int iValue, int index) const
{
    VYRCFD_ENTER(20);
    VYRCFD_PASS(CheckListWrite(VYRCFD_FUNCTION, index));
    VYRCFD_ASSERT((_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum));
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    _spAttr->SetInteger(_spKey, iValue, index);
    return S_OK;
}

[[gnu::flatten]] HRESULT VYRCfdObjectAccess::GetDouble(double& oValue) const
{
    VYRCFD_ENTER_RESET(25);
    VYRCFD_PASS(CheckObject(VYRCFD_FUNCTION));
    if (!_spKey)
    {
        const ORXISimBCDataTableColumn_var spTableColumn = _spAttr;
        VYRCFD_ASSERT(spTableColumn);
        VYRCFD_CHECK(spTableColumn->GetValue(0, oValue));
        return S_OK;
    }
    if (ORXSpecAttrShortcuts* const shortcuts = Shortcuts())
        if (shortcuts->ReadReal(_spAttr, _spKey, oValue))
            return S_OK;
    ORXIValue_var spVal;
    VYRCFD_PASS(ParameterValue(VYRCFD_FUNCTION, spVal));
    oValue = spVal->AsReal();
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetDouble(double& oValue, int index) const
{
    VYRCFD_ENTER_RESET(25);
    VYRCFD_PASS(CheckObject(VYRCFD_FUNCTION));
    VYRCFD_ASSERT(index > 0);
    if (!_spKey)
    {
        const ORXISimBCDataTableColumn_var spTableColumn = _spAttr;
        VYRCFD_ASSERT(spTableColumn);
        VYRCFD_CHECK(spTableColumn->GetValue(index, oValue));
        return S_OK;
    }
    VYRCFD_ASSERT(_spKey->GetType() == tk_list);
    VYRCFD_ASSERT(_spKey->GetListType() == tk_double);
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    oValue = _spAttr->GetDouble(_spKey, index);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetDouble(double iValue) const
{
    VYRCFD_ENTER_RESET(20);
    if (!_spKey)
    {
        VYRCFD_PASS(CheckObject(VYRCFD_FUNCTION));
        const ORXISimBCDataTableColumn_var spTableColumn = _spAttr;
        VYRCFD_ASSERT(spTableColumn);
        VYRCFD_CHECK(spTableColumn->SetValue(0, iValue));
        return S_OK;
    }
    if (ORXSpecAttrShortcuts* const shortcuts = Shortcuts())
        if (shortcuts->WriteReal(_spAttr, _spKey, iValue))
            return S_OK;
    const ORXICkeParm_var spParm = GetParm();
    VYRCFD_ASSERT(spParm);
    const ORXICkeType_var spType = spParm->GetType();
    VYRCFD_ASSERT(!!spType && spType->IsaKindOf("Real"));
    spParm->Valuate(iValue);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetDouble(double iValue, int index) const
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_PASS(CheckObject(VYRCFD_FUNCTION));
    if (!_spKey)
    {
        const ORXISimBCDataTableColumn_var spTableColumn = _spAttr;
        VYRCFD_ASSERT(spTableColumn);
        VYRCFD_CHECK(spTableColumn->SetValue(index, iValue));
        return S_OK;
    }
    VYRCFD_PASS(CheckListWrite(VYRCFD_FUNCTION, index));
    VYRCFD_ASSERT(_spKey->GetListType() == tk_double);
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    _spAttr->SetDouble(_spKey, iValue, index);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetBoolean(bool& oValue) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    ORXIValue_var spVal;
    VYRCFD_PASS(ParameterValue(VYRCFD_FUNCTION, spVal));
    oValue = spVal->AsBoolean() != 0;
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetBoolean(bool& oValue, int index) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckListRead(VYRCFD_FUNCTION, index));
    VYRCFD_ASSERT(_spKey->GetListType() == tk_boolean);
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    oValue = _spAttr->GetBoolean(_spKey, index) != ORXFalse;
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetBoolean(bool iValue) const
{
    VYRCFD_ENTER(20);
    const ORXICkeParm_var spParm = GetParm();
    VYRCFD_ASSERT(spParm);
    const ORXICkeType_var spType = spParm->GetType();
    VYRCFD_ASSERT(!!spType && spType->IsaBoolean());
    spParm->Valuate(iValue ? ORXCke::True : ORXCke::False);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetBoolean(bool iValue, int index) const
{
    VYRCFD_ENTER(20);
    VYRCFD_PASS(CheckListWrite(VYRCFD_FUNCTION, index));
    VYRCFD_ASSERT(_spKey->GetListType() == tk_boolean);
    VYRCFD_PASS(CheckSize(VYRCFD_FUNCTION, index));
    _spAttr->SetBoolean(_spKey, iValue ? ORXTrue : ORXFalse, index);
    return S_OK;
}

bool VYRCfdObjectAccess::IsString() const
{
    VYRCFD_ENTER_RESET(25);
    VYRCFD_ASSERT(_error.IsNull());
    const ORXICkeType_var spType = AttributeType(VYRCFD_FUNCTION);
    return !!spType && spType->IsaString();
}

bool VYRCfdObjectAccess::IsInteger() const
{
    VYRCFD_ENTER_RESET(25);
    VYRCFD_ASSERT(_error.IsNull());
    const ORXICkeType_var spType = AttributeType(VYRCFD_FUNCTION);
    if (!spType)
        return false;
    const ORXIParmDictionary_var spDictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    if (!spDictionary)
        return spType->IsaInteger();
    return spType->IsaKindOf(spDictionary->GetIntegerType()) || spType->IsaKindOf(spDictionary->GetEnumType());
}

bool VYRCfdObjectAccess::IsDouble() const
{
    VYRCFD_ENTER_RESET(25);
    VYRCFD_ASSERT(_error.IsNull());
    VYRCFD_PASS(CheckObject(VYRCFD_FUNCTION));
    if (!_spKey)
    {
        const ORXISimBCDataTableColumn_var spTableColumn = _spAttr;
        VYRCFD_ASSERT(spTableColumn);
        return spTableColumn->GetRowCount() > 0;
    }
    const ORXICkeType_var spType = ParameterType(VYRCFD_FUNCTION);
    if (!spType)
        return false;
    const ORXIParmDictionary_var spDictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    return !spDictionary ? spType->IsaReal() : spType->IsaKindOf(spDictionary->GetRealType());
}

bool VYRCfdObjectAccess::IsBoolean() const
{
    VYRCFD_ENTER_RESET(25);
    if (HasError())
        return false;
    const ORXICkeType_var spType = AttributeType(VYRCFD_FUNCTION);
    if (!spType)
        return false;
    const ORXIParmDictionary_var spDictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    return !spDictionary ? spType->IsaBoolean() : spType->IsaKindOf(spDictionary->GetBooleanType());
}

bool VYRCfdObjectAccess::IsEnum() const
{
    VYRCFD_ENTER_RESET(25);
    if (HasError())
        return false;
    const ORXICkeType_var spType = AttributeType(VYRCFD_FUNCTION);
    if (!spType)
        return false;
    const ORXIParmDictionary_var spDictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    return !!spDictionary && spType->IsaKindOf(spDictionary->GetEnumType());
}

// ---- lists ----------------------------------------------------------------------------------------------------------

bool VYRCfdObjectAccess::IsList() const
{
    VYRCFD_ENTER(25);
    return !HasError() && !!_spAttr && !!_spKey && _spKey->GetType() == tk_list;
}

bool VYRCfdObjectAccess::IsObject() const
{
    VYRCFD_ENTER(25);
    if (HasError() || !_spAttr)
        return false;
    return !_spKey || IsObjectType(_spKey->GetType());
}

bool VYRCfdObjectAccess::IsObjectList() const
{
    VYRCFD_ENTER(25);
    if (HasError() || !_spAttr || !_spKey)
        return false;
    return _spKey->GetType() == tk_list && IsObjectType(_spKey->GetListType());
}

HRESULT VYRCfdObjectAccess::GetListSize(int& oSize) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckNoError(VYRCFD_FUNCTION));
    if (!_spAttr)
        VYRCFD_FAIL("null attribute");
    if (!_spKey)
        VYRCFD_FAIL("null key");
    const int type = _spKey->GetType();
    VYRCFD_ASSERT(type == tk_list);
    oSize = _spAttr->GetListSize(_spKey);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::List(std::vector<VYRCfdObjectAccess>& oObjects, bool skipNull) const
{
    VYRCFD_ENTER_RESET(30);
    VYRCFD_PASS(CheckStanding(VYRCFD_FUNCTION));
    oObjects.clear();
    VYRCFD_ASSERT(_spKey->GetType() == tk_list && (_spKey->GetListType() == tk_component || _spKey->GetListType() == tk_specobject));
    const std::unique_ptr<const ORXListValORXBaseUnknown_var> pVals(_spAttr->ListObjects(_spKey, 0));
    if (pVals == nullptr)
        return S_OK;
    oObjects.reserve(static_cast<std::size_t>(pVals->Size()));
    for (int i = 1; i <= pVals->Size(); ++i)
    {
        const VYRCfdObjectAccess entry((*pVals)[i]);
        if (!skipNull || !entry.IsNull())
            oObjects.push_back(entry);
    }
    return S_OK;
}

HRESULT VYRCfdObjectAccess::List(ORXListValORXBaseUnknown_var& oObjects) const
{
    VYRCFD_RESET();
    std::vector<VYRCfdObjectAccess> objects;
    VYRCFD_CHECK(List(objects));
    for (const VYRCfdObjectAccess& object : objects)
        oObjects.Append(object.Self());
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetStrings(std::vector<ORXUnicodeString>& oValues) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    if (_spKey->GetType() != tk_list)
    {
        VYRCFD_ASSERT(_spKey->GetType() == tk_string);
        oValues.push_back(_spAttr->GetString(_spKey, 0));
        return S_OK;
    }
    VYRCFD_ASSERT(_spKey->GetListType() == tk_string);
    const int size = _spAttr->GetListSize(_spKey);
    for (int i = 1; i <= size; ++i)
        oValues.push_back(_spAttr->GetString(_spKey, i));
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetStrings(ORXListValORXUnicodeString& oValues) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    if (_spKey->GetType() != tk_list)
    {
        VYRCFD_ASSERT(_spKey->GetType() == tk_string);
        oValues.Append(_spAttr->GetString(_spKey, 0));
        return S_OK;
    }
    VYRCFD_ASSERT(_spKey->GetListType() == tk_string);
    const int size = _spAttr->GetListSize(_spKey);
    for (int i = 1; i <= size; ++i)
        oValues.Append(_spAttr->GetString(_spKey, i));
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetDoubles(std::vector<double>& oValues) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckObject(VYRCFD_FUNCTION));
    // Alone among the readers of whole lists this one starts from empty.
    oValues.clear();
    if (!_spKey)
    {
        const ORXISimBCDataTableColumn_var spTableColumn = _spAttr;
        VYRCFD_ASSERT(spTableColumn);
        ORXRawColldouble values(0);
        spTableColumn->GetValues(values);
        for (int i = 1; i <= values.Size(); ++i)
            oValues.push_back(values[i]);
        return S_OK;
    }
    if (_spKey->GetType() != tk_list)
    {
        VYRCFD_ASSERT(_spKey->GetType() == tk_double);
        oValues.push_back(_spAttr->GetDouble(_spKey, 0));
        return S_OK;
    }
    VYRCFD_ASSERT(_spKey->GetListType() == tk_double);
    const int size = _spAttr->GetListSize(_spKey);
    for (int i = 1; i <= size; ++i)
        oValues.push_back(_spAttr->GetDouble(_spKey, i));
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetIntegers(std::vector<int>& oValues) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    if (_spKey->GetType() != tk_list)
    {
        VYRCFD_ASSERT((_spKey->GetType() == tk_integer || _spKey->GetType() == tk_enum));
        oValues.push_back(_spAttr->GetInteger(_spKey, 0));
        return S_OK;
    }
    VYRCFD_ASSERT((_spKey->GetListType() == tk_integer || _spKey->GetListType() == tk_enum));
    const int size = _spAttr->GetListSize(_spKey);
    for (int i = 1; i <= size; ++i)
        oValues.push_back(_spAttr->GetInteger(_spKey, i));
    return S_OK;
}

HRESULT VYRCfdObjectAccess::GetBooleans(std::vector<bool>& oValues) const
{
    VYRCFD_ENTER(25);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    if (_spKey->GetType() != tk_list)
    {
        VYRCFD_ASSERT(_spKey->GetType() == tk_boolean);
        oValues.push_back(_spAttr->GetBoolean(_spKey, 0) != ORXFalse);
        return S_OK;
    }
    VYRCFD_ASSERT(_spKey->GetListType() == tk_boolean);
    const int size = _spAttr->GetListSize(_spKey);
    for (int i = 1; i <= size; ++i)
        oValues.push_back(_spAttr->GetBoolean(_spKey, i) != ORXFalse);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetStrings(std::vector<ORXUnicodeString> iValues) const
{
    VYRCFD_ENTER(20);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    VYRCFD_ASSERT(_spKey->GetType() == tk_list);
    VYRCFD_ASSERT(_spKey->GetListType() == tk_string);
    ORXListValORXUnicodeString list;
    for (const ORXUnicodeString& value : iValues)
        list.Append(value);
    _spAttr->SetStringList(_spKey, list);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetStrings(const ORXListValORXUnicodeString& iValues) const
{
    VYRCFD_ENTER(20);
    VYRCFD_PASS(CheckAttribute(VYRCFD_FUNCTION));
    VYRCFD_ASSERT(_spKey->GetType() == tk_list);
    VYRCFD_ASSERT(_spKey->GetListType() == tk_string);
    _spAttr->SetStringList(_spKey, iValues);
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetList(const std::vector<VYRCfdObjectAccess>& iObjects) const
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_PASS(CheckStanding(VYRCFD_FUNCTION));
    VYRCFD_PASS(CheckObjectList(VYRCFD_FUNCTION));
    return VYRCfdListArrangement(VYRCFD_FUNCTION, _spAttr, _spKey, iObjects).Go();
}

HRESULT VYRCfdObjectAccess::SetList(ORXListValORXBaseUnknown_var& iObjects) const
{
    VYRCFD_ENTER(20);
    std::vector<VYRCfdObjectAccess> objects;
    objects.reserve(static_cast<std::size_t>(iObjects.Size()));
    for (int i = 1; i <= iObjects.Size(); ++i)
        objects.push_back(VYRCfdObjectAccess(iObjects[i]));
    return SetList(objects);
}

HRESULT VYRCfdObjectAccess::SetObject(const ORXBaseUnknown_var& iObject, int index) const
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_PASS(CheckStanding(VYRCFD_FUNCTION));
    const int type = _spKey->GetType();
    if (type == tk_list)
    {
        const int listType = _spKey->GetListType();
        VYRCFD_ASSERT(listType == tk_component || listType == tk_specobject);
    }
    else if (IsObjectType(type))
        VYRCFD_ASSERT(index == 0);
    else
        VYRCFD_FAIL("incorrect attr type");
    VYRCFD_CHECK(_spAttr->SetSpecObject(_spKey, iObject, index));
    return S_OK;
}

HRESULT VYRCfdObjectAccess::SetObject(const VYRCfdObjectAccess& iObject, int index) const
{
    VYRCFD_ENTER_RESET(20);
    return SetObject(iObject.Self(), index);
}

HRESULT VYRCfdObjectAccess::Remove(const ORXBaseUnknown_var& iObject) const
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_PASS(CheckStanding(VYRCFD_FUNCTION));
    VYRCFD_ASSERT(iObject);
    VYRCFD_PASS(CheckObjectList(VYRCFD_FUNCTION));
    const std::unique_ptr<const ORXListValORXBaseUnknown_var> pVals(_spAttr->ListObjects(_spKey, 0));
    if (pVals == nullptr)
        return S_FALSE;
    for (int i = 1; i <= pVals->Size(); ++i)
        if (ORXBaseUnknown_var::equal_to(iObject, (*pVals)[i]))
        {
            _spAttr->RemovePosition(_spKey, i);
            return S_OK;
        }
    return S_FALSE;
}

HRESULT VYRCfdObjectAccess::RemoveAll() const
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_PASS(CheckStanding(VYRCFD_FUNCTION));
    const int type = _spKey->GetType();
    VYRCFD_ASSERT(type == tk_list);
    VYRCFD_CHECK(_spAttr->RemoveAll(_spKey));
    return S_OK;
}

HRESULT VYRCfdObjectAccess::RemovePosition(int index) const
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_PASS(CheckStanding(VYRCFD_FUNCTION));
    VYRCFD_PASS(CheckObjectList(VYRCFD_FUNCTION));
    const int size = _spAttr->GetListSize(_spKey);
    VYRCFD_ASSERT(index > 0 && index <= size);
    VYRCFD_CHECK(_spAttr->RemovePosition(_spKey, index));
    return S_OK;
}

HRESULT VYRCfdObjectAccess::CleanList(const GUID& iInterface) const
{
    VYRCFD_ENTER_RESET(20);
    VYRCFD_PASS(CheckStanding(VYRCFD_FUNCTION));
    VYRCFD_PASS(CheckObjectList(VYRCFD_FUNCTION));
    const std::unique_ptr<ORXListValORXBaseUnknown_var> pVals(_spAttr->ListObjects(_spKey, 0));
    if (pVals == nullptr)
        return S_FALSE;

    // Only the copy is cleaned. Callers rely on the answer, and on the attribute staying as it is.
    bool removed = false;
    for (int i = pVals->Size(); i >= 1; --i)
    {
        void* pInterface = nullptr;
        if (!!(*pVals)[i])
            (*pVals)[i]->QueryInterface(iInterface, &pInterface);
        if (pInterface != nullptr)
        {
            static_cast<IUnknown*>(pInterface)->Release();
            continue;
        }
        pVals->RemovePosition(i);
        removed = true;
    }
    return removed ? S_OK : S_FALSE;
}
// clang-format on
