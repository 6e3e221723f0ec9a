#include "ContractTest.h"

#include <memory>
#include <ostream>
#include <utility>

#include "ContractExtensions.h"
#include "ORXSimBCInitializeServices.h"

std::string Narrow(const ORXUnicodeString& iText)
{
    return std::string(iText.View());
}

std::vector<std::string> TextsOf(const ORXListValORXUnicodeString& iList)
{
    std::vector<std::string> texts;
    for (int i = 1; i <= iList.Size(); ++i)
        texts.push_back(Narrow(iList[i]));
    return texts;
}

ORXListValORXUnicodeString ListOf(const std::vector<const char*>& iTexts)
{
    ORXListValORXUnicodeString list;
    for (const char* text : iTexts)
        list.Append(text);
    return list;
}

std::string EncodeCodePoint(unsigned iCodePoint)
{
    const auto continued = [&](unsigned iShift) { return static_cast<char>(0x80U | ((iCodePoint >> iShift) & 0x3FU)); };
    if (iCodePoint < 0x80U)
        return {static_cast<char>(iCodePoint)};
    if (iCodePoint < 0x800U)
        return {static_cast<char>(0xC0U | (iCodePoint >> 6U)), continued(0)};
    if (iCodePoint < 0x10000U)
        return {static_cast<char>(0xE0U | (iCodePoint >> 12U)), continued(6), continued(0)};
    return {static_cast<char>(0xF0U | (iCodePoint >> 18U)), continued(12), continued(6), continued(0)};
}

const std::vector<std::string>& CharactersOfEveryPlane()
{
    // No text holds surrogates; U+0000 is left to the tests of embedded zeros.
    static const std::vector<std::string> characters = [] {
        std::vector<std::string> made;
        for (unsigned plane = 0; plane <= 16; ++plane)
            for (const unsigned low : {0x0001U, 0xFFFDU})
                made.push_back(EncodeCodePoint(plane * 0x10000U + low));
        return made;
    }();
    return characters;
}

void PrintTo(const ORXUnicodeString& iText, std::ostream* ioStream)
{
    *ioStream << '"' << iText.View() << '"';
}

ORXISpecObject_var MakeIn(const HostUnderTest::Model& iModel, const char* iType, const char* iName)
{
    ORXIContainer_var container = iModel.Container();
    ORXISpecObject_var made;
    EXPECT_EQ(ORXSimBCInitializeServices::CreateBasicComponent(iType, iName, container, made), S_OK) << iType;
    EXPECT_FALSE(!made) << iType;
    return made;
}

unsigned int CountOf(ORXBaseUnknown* iComponent)
{
    return HostUnderTest::ReferencesOn(iComponent);
}

ContractTest::ContractTest() : m_aliveBefore(HostUnderTest::LiveComponents())
{
    HostUnderTest::DeclareTypes();
}

ContractTest::~ContractTest()
{
    m_model.Close();
    EXPECT_EQ(HostUnderTest::LiveComponents(), m_aliveBefore) << "something that the test made lives on";
}

ORXISpecAttrKey_var ContractTest::KeyOf(const ORXISpecObject_var& iObject, const char* iName)
{
    return ORXISpecAttrKey_var::Adopt(AccessOf(iObject)->GetAttrKey(iName));
}

ORXICkeParm_var ContractTest::ParmOf(const ORXISpecObject_var& iObject, const char* iName)
{
    return ORXCke_GetParm(AccessOf(iObject), KeyOf(iObject, iName), 1);
}

ORXISpecObject_var ContractTest::ObjectOf(const ORXISpecObject_var& iObject, const char* iName, int iIndex)
{
    return ORXISpecObject_var::Adopt(AccessOf(iObject)->GetSpecObject(KeyOf(iObject, iName), iIndex));
}

ORXISpecObject_var ContractTest::OwnerOf(const ORXISpecObject_var& iObject)
{
    return ORXISpecObject_var::Adopt(iObject->GetOwner());
}

ORXISpecObject_var ContractTest::StartupOf(const ORXISpecObject_var& iObject)
{
    return ORXISpecObject_var::Adopt(iObject->GetStartup());
}

std::string ContractTest::TextOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const ORXIValue_var value = ParmOf(iObject, iName)->GetValue();
    return value->IsValuated() != 0 ? Narrow(value->AsString()) : "(none)";
}

std::string ContractTest::NamesOf(const ORXISpecObject_var& iObject, const char* iName)
{
    const std::unique_ptr<ORXListValORXBaseUnknown_var> list(AccessOf(iObject)->ListObjects(KeyOf(iObject, iName)));
    std::string names;
    if (list == nullptr)
        return names;
    for (int position = 1; position <= list->Size(); ++position)
    {
        const ORXISpecObject_var entry = (*list)[position];
        names += (position > 1 ? " " : "") + (!entry ? std::string("(null)") : Narrow(entry->GetName()));
    }
    return names;
}

HRESULT ContractTest::Set(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue,
                          int iIndex)
{
    return AccessOf(iObject)->SetSpecObject(KeyOf(iObject, iName), iValue, iIndex);
}

HRESULT ContractTest::Insert(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue,
                             int iIndex)
{
    return AccessOf(iObject)->InsertAtPosition(KeyOf(iObject, iName), iValue, iIndex);
}

void ContractTest::Add(const ORXISpecObject_var& iObject, const char* iName, int iTypeCode)
{
    EXPECT_FALSE(!ORXISpecAttribute_var::Adopt(iObject->AddAttribute(iName, iTypeCode, 0))) << iName;
}

std::string ContractTest::TopLevel() const
{
    const std::unique_ptr<ORXListValORXBaseUnknown_var> list(m_model.Container()->ListMembers(""));
    std::string names;
    for (int position = 1; position <= list->Size(); ++position)
        names += (names.empty() ? "" : " ") + Narrow(ORXISpecObject_var((*list)[position])->GetName());
    return names;
}

ListeningTest::ListeningTest()
{
    ContractInstance::s_onAdvise = [this](ORXBaseUnknown* iRoot, const ORXUnicodeString& iName,
                                          const ORXIValue_var& iValue) {
        m_told.push_back(LineOfNotification(iRoot, iName, iValue));
        return S_OK;
    };
}

ListeningTest::~ListeningTest()
{
    ContractInstance::s_onAdvise = nullptr;
}

ListeningTest::Lines ListeningTest::Told()
{
    return std::exchange(m_told, {});
}

std::string LineOfNotification(ORXBaseUnknown* iRoot, const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    const std::string value = !iValue ? "(null)" : iValue->IsValuated() != 0 ? Narrow(iValue->AsString()) : "(none)";
    return Narrow(ORXISpecObject_var::Cast(iRoot)->GetName()) + '.' + Narrow(iName) + '=' + value;
}
