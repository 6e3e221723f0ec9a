#include "RoundTrip.h"

#include <gtest/gtest.h>

#include "ExactDump.h"
#include "ORXCkeGlobalFunctions.h"
#include "ORXICkeParm.h"
#include "ORXISpecAttribute.h"

using VYRStandalone::Model;

void ExpectRoundTrip(const Model& iModel)
{
    const std::string text = iModel.Text();
    const Model again = Model::Parse(text, "saved");
    EXPECT_EQ(ExactDump(again), ExactDump(iModel)) << text;
    EXPECT_EQ(again.Text(), text);
}

ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName));
    EXPECT_NE(key, NULL_var) << iName;
    return key;
}

ORXISpecObject_var ObjectAt(const ORXISpecObject_var& iObject, const char* iName, int iIndex)
{
    const ORXISpecAttrAccess_var access = iObject;
    return ORXISpecObject_var::Adopt(access->GetSpecObject(KeyOf(iObject, iName), iIndex));
}

void WriteObjectAt(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue, int iIndex)
{
    const ORXISpecAttrAccess_var access = iObject;
    EXPECT_EQ(access->SetSpecObject(KeyOf(iObject, iName), iValue, iIndex), S_OK) << iName;
}

void Append(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXISpecAttrKey_var key = KeyOf(iObject, iName);
    EXPECT_EQ(access->InsertAtPosition(key, iValue, access->GetListSize(key) + 1), S_OK) << iName;
}

void WriteText(const ORXISpecObject_var& iObject, const char* iName, const ORXUnicodeString& iText)
{
    const ORXISpecAttrAccess_var access = iObject;
    EXPECT_EQ(access->SetString(KeyOf(iObject, iName), iText), S_OK) << iName;
}

void WriteReal(const ORXISpecObject_var& iObject, const char* iName, double iValue)
{
    const ORXISpecAttrAccess_var access = iObject;
    EXPECT_EQ(access->SetDouble(KeyOf(iObject, iName), iValue), S_OK) << iName;
}

void WriteInteger(const ORXISpecObject_var& iObject, const char* iName, int iValue)
{
    const ORXISpecAttrAccess_var access = iObject;
    EXPECT_EQ(access->SetInteger(KeyOf(iObject, iName), iValue), S_OK) << iName;
}

void WriteBoolean(const ORXISpecObject_var& iObject, const char* iName, bool iValue)
{
    const ORXISpecAttrAccess_var access = iObject;
    EXPECT_EQ(access->SetBoolean(KeyOf(iObject, iName), iValue ? ORXTrue : ORXFalse), S_OK) << iName;
}

void Empty(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXISpecAttrAccess_var access = iObject;
    const ORXICkeParm_var parameter = ORXCke_GetParm(access, KeyOf(iObject, iName), 1);
    const ORXICkeType_var type = parameter->GetType();
    parameter->ValuateFromValue(ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(type, "unset")->GetValue());
    EXPECT_EQ(parameter->GetValue()->IsValuated(), 0) << iName;
}

bool Add(const ORXISpecObject_var& iObject, const ORXUnicodeString& iName, int iTypeCode, int iFlag)
{
    return ORXISpecAttribute_var::Adopt(iObject->AddAttribute(iName, iTypeCode, iFlag)) != NULL_var;
}
