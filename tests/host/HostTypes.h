#ifndef HostTypes_H
#define HostTypes_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ORXICkeParm.h"
#include "ORXISpecAttrAccess.h"
#include "ORXISpecAttribute.h"
#include "ORXISpecObject.h"
#include "VYRStandaloneHost.h"

/// Declares the feature types of these tests; a second call finds them standing.
void DeclareHostTypes();

/// A test with a model. An object is reached by its attribute access, an attribute by its name.
class HostTest : public testing::Test
{
protected:
    HostTest();

    ORXISpecObject_var Make(const char* iType, const char* iName);

    static ORXISpecAttrAccess_var AccessOf(const ORXISpecObject_var& iObject) { return iObject; }
    static ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const char* iName);
    static ORXICkeParm_var ParmOf(const ORXISpecObject_var& iObject, const char* iName);
    /// Null when the attribute is empty.
    static ORXISpecObject_var ObjectOf(const ORXISpecObject_var& iObject, const char* iName, int iIndex = 0);
    /// Text of the attribute's value; "(none)" when it is unset.
    static std::string TextOf(const ORXISpecObject_var& iObject, const char* iName);
    /// Names of the objects of a list, "(null)" for empty entries, with blanks between.
    static std::string NamesOf(const ORXISpecObject_var& iObject, const char* iName);
    static HRESULT Set(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue,
                       int iIndex = 0);
    static HRESULT Insert(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue,
                          int iIndex);
    /// Adds an attribute to the object alone.
    static void Add(const ORXISpecObject_var& iObject, const char* iName, int iTypeCode);
    /// Names of the model's top-level objects, with blanks between.
    std::string TopLevel() const;

    VYRStandalone::Model m_model;
};

std::string Narrow(const ORXUnicodeString& iText);
unsigned int CountOf(const ORXISpecObject_var& iObject);

#endif
