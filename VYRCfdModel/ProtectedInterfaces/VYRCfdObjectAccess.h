#ifndef VYRCfdObjectAccess_H
#define VYRCfdObjectAccess_H

/**
 * @file
 * The cursor over feature objects.
 */

#include <vector>

#include "ORXICkeParm.h"
#include "ORXISpecAttrAccess.h"
#include "ORXISpecObject.h"
#include "ORXListValORXBaseUnknown_var.h"
#include "ORXListValORXUnicodeString.h"
#include "ORXUnicodeString.h"
#include "VYRCfdBaseExport.h"
#include "VYRCfdTraceManager.h"

class ORXSpecAttrShortcuts;
struct ORXSpecAttrPlace;

/// Gives the key of one attribute, borrowed; see ORXKeySetVYRCfdBase.
using VYRCfdKeyFunction = ORXISpecAttrKey* (*)(ORXISpecAttrAccess* iAccess);

/**
 * A small value that stands at a feature object, or at one attribute of it, and answers chains such as
 * `access["inlet"]["pressure"].GetDouble(pressure)`.
 *
 * | state            | `_spAttr` | `_spKey` | `_error`  | stands                                        |
 * |------------------|-----------|----------|-----------|-----------------------------------------------|
 * | object cursor    | set       | null     | empty     | at an object that gives attribute access      |
 * | attribute cursor | set       | set      | empty     | at a scalar, at a whole list, or by `Ref` at  |
 * |                  |           |          |           | an object-valued attribute                    |
 * | error cursor     | null      | null     | not empty | nowhere, after a failed link                  |
 * | empty cursor     | null      | null     | empty     | nowhere                                       |
 *
 * A chain never stops in the middle: a failing link gives an error cursor, and every further link hands its text on.
 * Navigation reports nothing. The operation that returns a status reports the text to the error service and answers
 * E_FAIL; `Is...` tests answer false, `GetName`, `GetID` and `GetType` an empty text, `GetParm` a null handle. A
 * failing read or write reports and leaves its output argument and the cursor as they were.
 *
 * Indices count from 1. Index 0 is the attribute itself: the scalar, or the whole list, never the first entry.
 *
 * A cursor holds a reference on its object, which stays the model's. Copying costs two reference counts and a string;
 * nothing is cached. A link costs a look-up in the host, by a name one more than by a key. Navigation and writes are
 * const: they change the model, not the cursor; a write returns when all that listens to it has been told. One cursor
 * is used by one thread at a time, like the objects that it walks.
 */
class VYRCfdBaseExport VYRCfdObjectAccess
{
public:
    /// An error cursor, "Null initialization b".
    VYRCfdObjectAccess();
    /// An object cursor; "Null initialization c" for null and for a component that gives no attribute access.
    VYRCfdObjectAccess(const ORXBaseUnknown_var& iObject);
    /// An error cursor with this text; an empty text gives the empty cursor.
    VYRCfdObjectAccess(const ORXUnicodeString& iError);
    /// Stands where the other stands, with its error.
    VYRCfdBaseInline VYRCfdObjectAccess(const VYRCfdObjectAccess& iOther)
        : _spAttr(iOther._spAttr), _spKey(iOther._spKey), _error(iOther._error)
    {
        if (IsTraced())
            TraceCopy();
    }
    VYRCfdBaseInline virtual ~VYRCfdObjectAccess()
    {
        if (IsTraced())
            TraceEnd();
    }

    /// To where the other stands, with its error.
    VYRCfdObjectAccess& operator=(const VYRCfdObjectAccess& iOther);
    /// To an object cursor; "Null initialization a" for null. Unlike the constructor it takes a component that gives no
    /// attribute access without an error, and stands nowhere then.
    VYRCfdObjectAccess& operator=(const ORXBaseUnknown_var& iObject);

    /// True when the cursor stands nowhere, or at an attribute that its object does not carry.
    /// @{
    bool operator!() const;
    bool IsNull() const;
    /// @}
    /// Whether this is an error cursor.
    bool HasError() const;
    /// What has failed; empty where nothing has.
    ORXUnicodeString GetError() const;

    /// Whether both stand at the same place. Error texts play no part: all cursors without an object are equal.
    bool operator==(const VYRCfdObjectAccess& iOther) const;
    /// The contrary of `operator==`.
    bool operator!=(const VYRCfdObjectAccess& iOther) const;

    /// The object, also of an attribute cursor; null on an error cursor.
    ORXBaseUnknown_var Self() const;
    /// The same as `Self`.
    operator ORXBaseUnknown_var();
    /// The same, borrowed, valid as long as the cursor stands there. No test for `IsNull`: the attribute is not looked
    /// at.
    operator ORXBaseUnknown*();
    /// The attributes of the object; null on an error cursor.
    ORXISpecAttrAccess_var Access() const;

    /**
     * Moves to an attribute. An object value is followed: the result stands at the object, and is "Null initialization
     * c" where the attribute is empty. Of a list, index 0 is the list itself and an index from 1 its entry, for lists
     * of objects only; the host decides on an index beyond the end. "Null key", name + " not a list", name + " not an
     * object".
     */
    VYRCfdObjectAccess Get(ORXISpecAttrKey* iKey, int iIndex) const;
    VYRCfdObjectAccess Get(VYRCfdKeyFunction iKeyFunction, int iIndex) const;
    /// The same, the attribute found by its name alone: "No attribute " + name. See `Get(name)` for the other meanings.
    VYRCfdObjectAccess Get(const ORXUnicodeString& iName, int iIndex) const;

    /**
     * Moves by any meaning of a name. On an object cursor: an attribute; of a Choice its current value, which leads to
     * its data object; an entry of the object's "SonsList"; otherwise "No attribute " + name. At a list of objects, in
     * this order: display name, internal name, feature type, 1-based position; otherwise "No matching object to " +
     * name. Linear in the list.
     */
    VYRCfdObjectAccess Get(const ORXUnicodeString& iName) const;

    /// Moves to an entry of the object list at which the cursor stands; "Index out of bounds".
    VYRCfdObjectAccess Get(int iIndex) const;

    /// The same as `Get(name)`.
    VYRCfdObjectAccess operator[](const ORXUnicodeString& iName) const;
    /// The same as `Get(index)`.
    VYRCfdObjectAccess operator[](int iIndex) const;
    /// The same as `Get(key, 0)`.
    VYRCfdObjectAccess operator[](ORXISpecAttrKey* iKey) const;
    VYRCfdObjectAccess operator[](VYRCfdKeyFunction iKeyFunction) const;

    /// Stays at an attribute that is no list, even if it holds an object: "Null key", name + " is a list".
    VYRCfdObjectAccess Ref(const ORXUnicodeString& iName) const;
    VYRCfdObjectAccess Ref(ORXISpecAttrKey* iKey) const;
    VYRCfdObjectAccess Ref(VYRCfdKeyFunction iKeyFunction) const;

    /// Walks names parted by "/", each as `Get(name)` takes it and at its cost. An empty segment ends the walk where it
    /// stands: so the empty path, and every path with a leading "/", is this cursor.
    VYRCfdObjectAccess GetByPath(const ORXUnicodeString& iPath) const;

    /// Cuts a path at its first "/". `oTail` is left alone where nothing follows, so callers pass an empty text.
    /// @return S_OK
    static HRESULT SplitPath(const ORXUnicodeString& iPath, ORXUnicodeString& oHead, ORXUnicodeString& oTail);

    /// From an attribute to its object, from an object to its owner; "Null initialization c" where it has none.
    VYRCfdObjectAccess GetParent() const;

    /// This cursor, or the error cursor "Condition not met", also for a cursor with an error of its own. Parses the
    /// condition each time: for one that is asked often keep a VYRCfdObjectCondition.
    VYRCfdObjectAccess ApplyCondition(const ORXUnicodeString& iCondition) const;

    /// Name of the attribute, or display name of the object.
    ORXUnicodeString GetName() const;
    /// Identifier of the object, also of an attribute cursor.
    ORXUnicodeString GetID() const;
    /// Feature type of the object; empty and false on an attribute cursor.
    ORXUnicodeString GetType() const;
    /// Whether the object's feature type is this one or derives from it; false on an attribute cursor.
    bool IsSubTypeOf(const ORXUnicodeString& iType) const;

    /// The knowledge parameter of the attribute; null, with no report, where there is none.
    ORXICkeParm_var GetParm() const;

    /// A string attribute, straight from and to the attribute store. @return E_FAIL for any other attribute, reported;
    /// of a write what the host answers
    /// @{
    HRESULT GetPlainString(ORXUnicodeString& oValue) const;
    HRESULT SetPlainString(const ORXUnicodeString& iValue) const;
    /// @}

    /**
     * Scalars are read and written through the attribute's parameter, so that one read serves every type. `SetString`
     * writes strings, and reals from text; `SetInteger` also enumerations, by number; `SetDouble` every type that is a
     * real. An index from 1 reads or writes an entry of a list of exactly that type, straight in the attribute store.
     * On an object cursor the reals are those of a data table column, in SI units, index 0 standing for its one value.
     * @return E_FAIL, reported, for a write to another kind of attribute, an entry of another kind of list, an index
     * outside, and where the cursor stands nowhere; a failure of the column. S_OK of a write says that the value was
     * handed to the host, which may have no use for it: a text that does not read as a real changes nothing
     */
    /// @{
    HRESULT GetString(ORXUnicodeString& oValue) const;
    HRESULT GetString(ORXUnicodeString& oValue, int index) const;
    HRESULT SetString(const ORXUnicodeString& iValue) const;
    HRESULT SetString(const ORXUnicodeString& iValue, int index) const;
    HRESULT GetInteger(int& oValue) const;
    HRESULT GetInteger(int& oValue, int index) const;
    HRESULT SetInteger(int iValue) const;
    HRESULT SetInteger(int iValue, int index) const;
    HRESULT GetDouble(double& oValue) const;
    HRESULT GetDouble(double& oValue, int index) const;
    HRESULT SetDouble(double iValue) const;
    HRESULT SetDouble(double iValue, int index) const;
    HRESULT GetBoolean(bool& oValue) const;
    HRESULT GetBoolean(bool& oValue, int index) const;
    HRESULT SetBoolean(bool iValue) const;
    HRESULT SetBoolean(bool iValue, int index) const;
    /// @}

    /// By the knowledge type of the attribute. An enumeration is also an integer. `IsDouble` on an object cursor: a
    /// column with rows. Where there is no attribute to ask, that is reported, but by the last two on an error cursor.
    /// @{
    bool IsString() const;
    bool IsInteger() const;
    bool IsDouble() const;
    bool IsBoolean() const;
    bool IsEnum() const;
    /// @}

    /// Whether the attribute is a list, holds one object, or is a list of objects. Never reported.
    /// `IsObject`: an object cursor, or an attribute that holds one object.
    /// @{
    bool IsList() const;
    bool IsObject() const;
    bool IsObjectList() const;
    /// @}

    /// Number of entries of a list of any kind. @return E_FAIL for what is no list, reported
    HRESULT GetListSize(int& oSize) const;

    /// Cursors on the entries of a list of objects, replacing what `oObjects` held. An empty entry keeps its place as
    /// an error cursor, unless `skipNull`. Linear in the list.
    /// @return E_FAIL for what is no list of objects, reported but on an object cursor; so do the operations below that
    /// take a list of objects
    HRESULT List(std::vector<VYRCfdObjectAccess>& oObjects, bool skipNull = false) const;
    /// The same as handles, behind what `oObjects` holds; an empty entry as a null handle.
    HRESULT List(ORXListValORXBaseUnknown_var& oObjects) const;

    /// All entries of a list of values, or the one of a scalar. They are appended; only `GetDoubles` starts from empty.
    /// Linear in the list. @return E_FAIL for any other kind, reported
    /// @{
    HRESULT GetStrings(std::vector<ORXUnicodeString>& oValues) const;
    HRESULT GetStrings(ORXListValORXUnicodeString& oValues) const;
    HRESULT GetDoubles(std::vector<double>& oValues) const;
    HRESULT GetIntegers(std::vector<int>& oValues) const;
    HRESULT GetBooleans(std::vector<bool>& oValues) const;
    /// @}

    /// Replaces a whole list of strings by one write, also when it holds them already. Linear in the list.
    /// @return E_FAIL for any other attribute, reported; S_OK whatever the host answers
    HRESULT SetStrings(std::vector<ORXUnicodeString> iValues) const;
    HRESULT SetStrings(const ORXListValORXUnicodeString& iValues) const;

    /**
     * Makes a list of objects equal to the wanted sequence by moves, inserts and removals, and leaves entries in place
     * alone. Whether the list owns its entries or refers to them is the attribute's matter. A failure stops where it
     * is; nothing is undone. Where the host tells identities (ORXIComponentIdentity) it costs time linear in entries
     * and writes; elsewhere, and where an entry is empty, comparisons in the order of the square of the length.
     * @return S_FALSE when nothing had to be done; the first failure of the host, reported
     */
    HRESULT SetList(const std::vector<VYRCfdObjectAccess>& iObjects) const;
    HRESULT SetList(ORXListValORXBaseUnknown_var& iObjects) const;

    /// Writes an object-valued attribute (index 0) or an entry of a list of objects; null is handed on to the host. A
    /// component attribute becomes the owner, a reference attribute only refers. @return the host's failure, reported
    HRESULT SetObject(const ORXBaseUnknown_var& iObject, int index) const;
    HRESULT SetObject(const VYRCfdObjectAccess& iObject, int index) const;

    /// Takes the object's first entry out of a list of objects. Linear in the list. @return S_FALSE when it has none
    HRESULT Remove(const ORXBaseUnknown_var& iObject) const;
    /// Empties a list of any kind. @return the host's failure, reported
    HRESULT RemoveAll() const;
    /// Takes one entry out of a list of objects. @return E_FAIL for an index outside, the host's failure; reported
    HRESULT RemovePosition(int index) const;

    /// Tells whether a list of objects holds entries that are empty or do not offer the interface: S_OK if so, S_FALSE
    /// otherwise. The attribute itself is not changed. Linear in the list.
    HRESULT CleanList(const GUID& iInterface) const;

private:
    class VYRCfdBaseLocal Place;
    /// Looks at many cursors, without counting their objects for each.
    friend class VYRCfdListArrangement;

    /// @name The function scopes of what is inline here, since each link of a chain makes and ends a cursor.
    /// @{
    static bool IsTraced() noexcept
    {
        const ORXTrace* const channel = VYRCfdTraceManager::_Features;
        return channel != nullptr && channel->IsActive();
    }
    static void TraceCopy();
    static void TraceEnd();
    /// @}

    VYRCfdObjectAccess(ORXISpecAttrAccess_var iAttr, ORXISpecAttrKey_var iKey);
    /// Takes the references over.
    VYRCfdBaseLocal explicit VYRCfdObjectAccess(ORXSpecAttrPlace&& ioPlace);

    VYRCfdObjectAccess ObjectAt(ORXISpecAttrKey* iKey, int iIndex) const;
    VYRCfdObjectAccess GetOnObject(const ORXUnicodeString& iName) const;
    VYRCfdObjectAccess GetInList(const ORXUnicodeString& iName) const;
    bool IsCurrentChoice(const ORXUnicodeString& iName) const;

    /// What the host offers for plain steps from here; null where single operations have to be called.
    ORXSpecAttrShortcuts* Shortcuts() const;
    /// Goes along a path as far as shortcuts lead. @param oBegin where the path goes on; its length where nothing is
    /// left. @param oReached its references are the caller's. @return false when no step was taken
    VYRCfdBaseLocal bool FollowPath(const ORXUnicodeString& iPath, int& oBegin, ORXSpecAttrPlace& oReached) const;

    // Checks and reads that operations share; they report under the name of the operation.
    HRESULT CheckNoError(const char* iFunction) const;
    HRESULT CheckObject(const char* iFunction) const;
    HRESULT CheckAttribute(const char* iFunction) const;
    HRESULT CheckStanding(const char* iFunction) const;
    HRESULT CheckObjectList(const char* iFunction) const;
    HRESULT CheckListRead(const char* iFunction, int index) const;
    HRESULT CheckListWrite(const char* iFunction, int index) const;
    HRESULT CheckSize(const char* iFunction, int index) const;
    HRESULT ParameterValue(const char* iFunction, ORXIValue_var& oValue) const;
    ORXICkeType_var AttributeType(const char* iFunction) const;
    ORXICkeType_var ParameterType(const char* iFunction) const;

    ORXISpecAttrAccess_var _spAttr;
    ORXISpecAttrKey_var _spKey;
    ORXUnicodeString _error;
};

#endif
