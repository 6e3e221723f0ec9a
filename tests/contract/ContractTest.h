#ifndef ContractTest_H
#define ContractTest_H

/**
 * @file
 * What the groups of the suite share.
 */

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "HostUnderTest.h"
#include "ORXICkeParm.h"
#include "ORXISpecAttrAccess.h"
#include "ORXISpecAttribute.h"
#include "ORXISpecObject.h"

std::string Narrow(const ORXUnicodeString& iText);
std::vector<std::string> TextsOf(const ORXListValORXUnicodeString& iList);
ORXListValORXUnicodeString ListOf(const std::vector<const char*>& iTexts);
/// Encodes a code point as UTF-8.
std::string EncodeCodePoint(unsigned iCodePoint);
/// One character of every plane of Unicode, the first and the last that may stand in a text.
const std::vector<std::string>& CharactersOfEveryPlane();

void PrintTo(const ORXUnicodeString& iText, std::ostream* ioStream);

/// Makes a top-level object of a model.
ORXISpecObject_var MakeIn(const HostUnderTest::Model& iModel, const char* iType, const char* iName);

/// References on a component.
unsigned int CountOf(ORXBaseUnknown* iComponent);

/// A test with a model. At its end the model is closed, and everything that was made must have gone: each test holds
/// the host to its ownership.
class ContractTest : public testing::Test
{
protected:
    ContractTest();
    ~ContractTest() override;

    ORXISpecObject_var Make(const char* iType, const char* iName) { return MakeIn(m_model, iType, iName); }

    static ORXISpecAttrAccess_var AccessOf(const ORXISpecObject_var& iObject) { return iObject; }
    static ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const char* iName);
    /// Null where there is none.
    static ORXICkeParm_var ParmOf(const ORXISpecObject_var& iObject, const char* iName);
    static ORXISpecObject_var ObjectOf(const ORXISpecObject_var& iObject, const char* iName, int iIndex = 0);
    static ORXISpecObject_var OwnerOf(const ORXISpecObject_var& iObject);
    static ORXISpecObject_var StartupOf(const ORXISpecObject_var& iObject);
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

    HostUnderTest::Model m_model;

private:
    int m_aliveBefore;
};

/// A notification of an object, given by its root: "NAME.ATTRIBUTE=TEXT", with "(none)" for a value that is not
/// valuated.
std::string LineOfNotification(ORXBaseUnknown* iRoot, const ORXUnicodeString& iName, const ORXIValue_var& iValue);

/// A test that is told of each notification that the extension classes of the suite receive.
class ListeningTest : public ContractTest
{
protected:
    ListeningTest();
    ~ListeningTest() override;

    using Lines = std::vector<std::string>;
    /// What was told since the last call.
    Lines Told();

private:
    Lines m_told;
};

#endif
