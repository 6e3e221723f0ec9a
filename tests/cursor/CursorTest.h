#ifndef CursorTest_H
#define CursorTest_H

/**
 * @file
 * What the tests of the cursor share: a catalog with an attribute of every kind, an object of it, and predicates for
 * the states of a cursor.
 */

#include <string>

#include "ModuleTest.h"

/// `CursorPart` has an attribute of every kind; `CursorAssembly` has sons.
inline constexpr const char* CursorCatalog = R"({
  "catalog": "CursorTest",
  "uses": ["VYRCfdBase"],
  "types": [
    { "name": "CursorMaterial", "attributes": [ { "name": "density", "kind": "real", "default": 1.2 } ] },
    { "name": "CursorZone", "attributes": [ { "name": "area", "kind": "real", "default": 2.0 } ] },
    { "name": "CursorWall", "base": "CursorZone" },
    { "name": "CursorPart",
      "attributes": [
        { "name": "relaxation", "kind": "real", "default": 0.7 },
        { "name": "iterations", "kind": "integer", "default": 500 },
        { "name": "steady", "kind": "boolean", "default": true },
        { "name": "scheme", "kind": "enumeration", "values": ["upwind", "central"], "default": "central" },
        { "name": "title", "kind": "string", "default": "cavity" },
        { "name": "note", "kind": "string" },
        { "name": "rate%s%n", "kind": "string", "default": "100%" },
        { "name": "levels", "kind": "list", "of": "real", "default": [1.5, 2.5, 3.5] },
        { "name": "counts", "kind": "list", "of": "integer", "default": [10, 20, 30] },
        { "name": "switches", "kind": "list", "of": "boolean", "default": [true, false, true] },
        { "name": "schemes", "kind": "list", "of": "enumeration", "values": ["upwind", "central"],
          "default": ["central", "upwind", "central"] },
        { "name": "monitors", "kind": "list", "of": "string", "default": ["lift", "drag", "heat"] },
        { "name": "codes%d", "kind": "list", "of": "string", "default": ["one"] },
        { "name": "zones", "kind": "list", "of": "component" },
        { "name": "related", "kind": "list", "of": "reference" },
        { "name": "solver", "kind": "component" },
        { "name": "material", "kind": "component", "type": "CursorMaterial" },
        { "name": "peer", "kind": "reference" } ] },
    { "name": "CursorAssembly",
      "attributes": [
        { "name": "own", "kind": "string" },
        { "name": "SonsList", "kind": "list", "of": "component" } ] },
    { "name": "CursorOddAssembly", "attributes": [ { "name": "SonsList", "kind": "string" } ] }
  ]
})";

/// Qualified name of an operation of the cursor, as reports carry it.
inline std::string In(const std::string& iOperation)
{
    return "VYRCfdObjectAccess::" + iOperation;
}

/// Key of an attribute, through any object that carries it; null for an unknown name.
inline ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const char* iName)
{
    return ORXISpecAttrKey_var::Adopt(AccessOf(iObject)->GetAttrKey(iName));
}

/// Sets an object value, past the cursor. Null is allowed.
inline void Put(const ORXISpecObject_var& iOwner, const char* iName, const ORXISpecObject_var& iObject)
{
    ASSERT_EQ(AccessOf(iOwner)->SetSpecObject(KeyOf(iOwner, iName), iObject, 0), S_OK);
}

/// Appends to a list of objects, past the cursor.
inline void Append(const ORXISpecObject_var& iOwner, const char* iName, const ORXISpecObject_var& iObject)
{
    const ORXISpecAttrKey_var key = KeyOf(iOwner, iName);
    const int behind = AccessOf(iOwner)->GetListSize(key) + 1;
    ASSERT_EQ(AccessOf(iOwner)->InsertAtPosition(key, iObject, behind), S_OK);
}

/// Empties an entry of a list of objects, which keeps its place.
inline void EmptyEntry(const ORXISpecObject_var& iOwner, const char* iName, int iPosition)
{
    ASSERT_EQ(AccessOf(iOwner)->SetSpecObject(KeyOf(iOwner, iName), ORXISpecObject_var(), iPosition), S_OK);
}

/// An error cursor with this text, whole: no object, no attribute, nothing else to be had of it.
inline testing::AssertionResult IsError(const VYRCfdObjectAccess& iCursor, const std::string& iText)
{
    const std::string text = iCursor.GetError().CastToCharPtr();
    if (text != iText)
        return testing::AssertionFailure() << "the error is \"" << text << "\", expected \"" << iText << '"';
    if (!iCursor.HasError() || !iCursor.IsNull() || !!iCursor.Self() || !iCursor.GetName().IsEmpty())
        return testing::AssertionFailure() << "\"" << text << "\" stands on a cursor that is no error cursor";
    return testing::AssertionSuccess();
}

/// An object cursor on the object.
inline testing::AssertionResult StandsAt(const VYRCfdObjectAccess& iCursor, const ORXISpecObject_var& iObject)
{
    if (iCursor.HasError())
        return testing::AssertionFailure()
               << "the cursor has the error \"" << iCursor.GetError().CastToCharPtr() << '"';
    if (!ORXBaseUnknown_var::equal_to(iCursor.Self(), iObject) || iCursor.IsNull())
        return testing::AssertionFailure() << "the cursor stands somewhere else";
    // Only an object cursor has a type.
    if (!(iCursor.GetType() == iObject->GetType()))
        return testing::AssertionFailure()
               << "the cursor stands at the attribute " << iCursor.GetName().CastToCharPtr();
    return testing::AssertionSuccess();
}

/// An attribute cursor on the object's attribute.
inline testing::AssertionResult StandsAt(const VYRCfdObjectAccess& iCursor, const ORXISpecObject_var& iObject,
                                         const char* iAttribute)
{
    if (iCursor.HasError())
        return testing::AssertionFailure()
               << "the cursor has the error \"" << iCursor.GetError().CastToCharPtr() << '"';
    if (!ORXBaseUnknown_var::equal_to(iCursor.Self(), iObject))
        return testing::AssertionFailure() << "the cursor stands somewhere else";
    if (!iCursor.GetType().IsEmpty())
        return testing::AssertionFailure() << "the cursor stands at the object itself";
    if (!(iCursor.GetName() == iAttribute))
        return testing::AssertionFailure()
               << "the cursor stands at the attribute " << iCursor.GetName().CastToCharPtr();
    return testing::AssertionSuccess();
}

/// A component that offers nothing but the root interface.
class BareComponent : public ORXBaseUnknown
{
public:
    static ORXBaseUnknown_var Make() { return ORXBaseUnknown_var::Adopt(new BareComponent); }
};

class CursorTest : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        Declare(CursorCatalog);
        m_part = Create("CursorPart", "Part.1");
    }

    VYRCfdObjectAccess Part() const { return Cursor(m_part); }

    /// At an attribute of the part.
    VYRCfdObjectAccess At(const char* iName) const { return Part().Get(KeyOf(m_part, iName).Pointer(), 0); }

    static VYRCfdObjectAccess Broken() { return VYRCfdObjectAccess(ORXUnicodeString("broken link %s%n")); }
    /// Neither an object nor an error.
    static VYRCfdObjectAccess Empty() { return VYRCfdObjectAccess(ORXUnicodeString()); }

    static constexpr const char* BrokenText = "broken link %s%n";

    /// Appends a new zone to the part's zones.
    ORXISpecObject_var AddZone(const char* iName, const char* iAlias = "", const char* iType = "CursorZone")
    {
        const ORXISpecObject_var zone = Create(iType, iName);
        if (*iAlias != '\0')
            VYRStandalone::SetAlias(zone, iAlias);
        Append(m_part, "zones", zone);
        return zone;
    }

    ORXISpecObject_var m_part;
};

#endif
