#ifndef ORXISpecAttrAccess_H
#define ORXISpecAttrAccess_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXISpecAttrKey.h"
#include "ORXListValORXBaseUnknown_var.h"
#include "ORXListValORXUnicodeString.h"

class ORXISpecObject;
using ORXISpecObject_var = ORXHandle<ORXISpecObject>;

/**
 * The attribute store of one object.
 *
 * An index of 0 addresses the value of an attribute that is no list; entries of a list are counted from 1. A read with
 * a key that the object does not carry, of another type than the attribute's, or with an index out of range gives 0,
 * "" or null. A write with such a key, type or index fails and changes nothing. Every successful write tells the
 * object's `ORXIInstance` once, after the value is stored and before the write returns, also when the new value equals
 * the old one; a write that takes away a value where there is none is the exception.
 */
class ORXHostExport ORXISpecAttrAccess : public ORXBaseUnknown
{
public:
    /// Key of the attribute of that name on this object: new reference, null if there is none. One hash look-up.
    virtual ORXISpecAttrKey* GetAttrKey(const char* iName) = 0;

    /// True when this object carries the attribute of the key. A key can exist while this is false.
    virtual ORXBoolean HasAttribute(ORXISpecAttrKey* iKey) = 0;

    /// Writes a real, in SI units where it measures something.
    virtual HRESULT SetDouble(ORXISpecAttrKey* iKey, double iValue, int iIndex = 0) = 0;
    /// Also writes an enumeration, by the number of its text, counted from 1.
    virtual HRESULT SetInteger(ORXISpecAttrKey* iKey, int iValue, int iIndex = 0) = 0;
    /// Writes a boolean.
    virtual HRESULT SetBoolean(ORXISpecAttrKey* iKey, ORXBoolean iValue, int iIndex = 0) = 0;
    /// Writes a string.
    virtual HRESULT SetString(ORXISpecAttrKey* iKey, const ORXUnicodeString& iValue, int iIndex = 0) = 0;

    /**
     * Sets an object value, or one entry of a list of objects. Null clears a scalar attribute, and empties a list
     * entry, which keeps its place. Under a `tk_component` attribute the object gets this object as its owner; the
     * object that stood there before has none afterwards.
     * @param iMode always 0
     */
    virtual HRESULT SetSpecObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex = 0,
                                  int iMode = 0) = 0;

    /// Reads a real, in SI units where it measures something.
    virtual double GetDouble(ORXISpecAttrKey* iKey, int iIndex = 0) = 0;
    /// Reads an integer, and of an enumeration the number of its text.
    virtual int GetInteger(ORXISpecAttrKey* iKey, int iIndex = 0) = 0;
    /// Reads a boolean.
    virtual ORXBoolean GetBoolean(ORXISpecAttrKey* iKey, int iIndex = 0) = 0;
    /// Reads a string.
    virtual ORXUnicodeString GetString(ORXISpecAttrKey* iKey, int iIndex = 0) = 0;

    /// New reference; null when the attribute or the entry is empty.
    virtual ORXISpecObject* GetSpecObject(ORXISpecAttrKey* iKey, int iIndex = 0) = 0;

    /// Replaces a whole list of strings.
    virtual HRESULT SetStringList(ORXISpecAttrKey* iKey, const ORXListValORXUnicodeString& iValues) = 0;

    /// Number of entries; 0 for an attribute that is no list.
    virtual int GetListSize(ORXISpecAttrKey* iKey) = 0;

    /// Takes one entry out of a list of any kind; the rest close up.
    virtual HRESULT RemovePosition(ORXISpecAttrKey* iKey, int iIndex) = 0;

    /// Empties a list of any kind.
    virtual HRESULT RemoveAll(ORXISpecAttrKey* iKey) = 0;

    /// Takes the object out of a scalar attribute, or its first occurrence out of a list. Nothing happens if it is
    /// not there.
    virtual void RemoveObject(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject) = 0;

    /**
     * Moves an entry of a list of objects to a position, the entries between shifting by one. Of several occurrences
     * of the object the first at or behind the position is moved; if none stands there, the first at all. Where the
     * object stands at the position already, the first occurrence behind that unbroken row of it joins the row, and
     * without one the order stays: so a caller that moves one occurrence after the other has them all side by side.
     */
    virtual HRESULT MoveInPosition(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex) = 0;

    /**
     * A copy of the entries of a list of objects; changing it does not change the attribute.
     * @param iMode always 0
     * @return new object, caller deletes; null is allowed and means that there is nothing to list
     */
    virtual ORXListValORXBaseUnknown_var* ListObjects(ORXISpecAttrKey* iKey, int iMode = 0) = 0;

    /// Inserts before the entry at the position; the position one behind the last appends.
    virtual HRESULT InsertAtPosition(ORXISpecAttrKey* iKey, const ORXISpecObject_var& iObject, int iIndex) = 0;

    static const IID& ClassId() noexcept { return IID_ORXISpecAttrAccess; }
};

using ORXISpecAttrAccess_var = ORXHandle<ORXISpecAttrAccess>;

#endif
