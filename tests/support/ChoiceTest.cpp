#include "ChoiceTest.h"

#include <algorithm>
#include <map>

#include "ORXCkeGlobalFunctions.h"
#include "ORXICkeManipulator.h"

namespace
{
constexpr const char* ChoiceTypes = R"({ "catalog": "ChoiceTest", "uses": ["VYRCfdBase"], "types": [
    { "name": "TypeAlpha", "base": "VYRCfdValues", "attributes": [
        { "name": "size", "kind": "real", "default": 1.5 },
        { "name": "count", "kind": "integer", "default": 2 },
        { "name": "label", "kind": "string", "default": "a" } ] },
    { "name": "TypeBeta", "base": "VYRCfdValues", "attributes": [
        { "name": "size", "kind": "real", "default": 2.5 },
        { "name": "count", "kind": "integer", "default": 3 },
        { "name": "label", "kind": "string", "default": "b" } ] },
    { "name": "TypeGamma", "base": "VYRCfdValues", "attributes": [
        { "name": "count", "kind": "integer", "default": 4 } ] },
    { "name": "ChoiceTestChoice", "base": "VYRCfdChoice" },
    { "name": "ChoiceTestHooked", "base": "VYRCfdChoice" },
    { "name": "ChoiceTestThree", "base": "ChoiceTestChoice", "startup": {
        "choices": ["alpha", "beta", "gamma"], "Startups": ["TypeAlpha", "TypeBeta", "TypeGamma"],
        "value": "alpha", "display": "Three" } },
    { "name": "ChoiceTestHookedThree", "base": "ChoiceTestHooked", "startup": {
        "choices": ["alpha", "beta", "gamma"], "Startups": ["TypeAlpha", "TypeBeta", "TypeGamma"],
        "value": "alpha", "display": "Three" } },
    { "name": "ChoiceTestOwner", "base": "VYRCfdValues", "attributes": [
        { "name": "model", "kind": "component", "type": "ChoiceTestHooked" },
        { "name": "kind", "kind": "component", "type": "VYRCfdChoice" },
        { "name": "steps", "kind": "integer", "default": 10 } ],
      "startup": {
        "model": { "choices": ["alpha", "beta", "gamma"], "Startups": ["TypeAlpha", "TypeBeta", "TypeGamma"],
                   "value": "beta", "display": "Model" },
        "kind": { "choices": ["one", "two"], "value": "one" } } } ] })";

ORXISpecAttrKey_var KeyOf(const ORXISpecAttrAccess_var& iAccess, const char* iName)
{
    return ORXISpecAttrKey_var::Adopt(iAccess->GetAttrKey(iName));
}

std::string Quoted(const std::string& iText)
{
    return "\"" + iText + "\"";
}

std::string Array(const Lines& iTexts)
{
    std::string array;
    for (const std::string& text : iTexts)
        array += (array.empty() ? "" : ", ") + Quoted(text);
    return "[" + array + "]";
}

std::string StartupOf(const ChoiceDeclaration& iDeclaration)
{
    std::string startup =
        R"({ "choices": )" + Array(iDeclaration.choices) + R"(, "Startups": )" + Array(iDeclaration.startups);
    if (iDeclaration.value.has_value())
        startup += R"(, "value": )" + Quoted(*iDeclaration.value);
    if (!iDeclaration.display.empty())
        startup += R"(, "display": )" + Quoted(iDeclaration.display);
    if (!iDeclaration.dataName.empty())
        startup += R"(, "dataName": )" + Quoted(iDeclaration.dataName);
    return startup + " }";
}

/// A type that declares so much. Types outlive their test, so that an equal declaration finds its type again.
std::string TypeFor(const ChoiceDeclaration& iDeclaration, const char* iBase)
{
    static std::map<std::string, std::string> types;
    const std::string rest = R"(", "base": ")" + std::string(iBase) + R"(", "startup": )" + StartupOf(iDeclaration);
    const auto [found, isNew] = types.try_emplace(rest, "ChoiceTestMade" + std::to_string(types.size() + 1));
    if (isNew)
        Declare(R"({ "catalog": "ChoiceTestMade", "uses": ["ChoiceTest"], "types": [ { "name": ")" + found->second +
                rest + " } ] }");
    return found->second;
}

ORXICkeParm_var ValueParameter(const ORXISpecObject_var& iChoice)
{
    const ORXISpecAttrAccess_var access = AccessOf(iChoice);
    return ORXCke_GetParm(access, KeyOf(access, "value"), 1);
}
} // namespace

void ChoiceTest::SetUp()
{
    ModuleTest::SetUp();
    TestChoice::Hooks() = {};
    Declare(ChoiceTypes);
    TestChoice::Register();
}

void ChoiceTest::TearDown()
{
    TestChoice::Hooks() = {};
    ModuleTest::TearDown();
}

ORXISpecObject_var ChoiceTest::Make(const ChoiceDeclaration& iDeclaration, const char* iName)
{
    return Create(TypeFor(iDeclaration, "ChoiceTestHooked").c_str(), iName);
}

ORXISpecObject_var ChoiceTest::MakeOwn(const ChoiceDeclaration& iDeclaration, const char* iName)
{
    return Create(TypeFor(iDeclaration, "ChoiceTestChoice").c_str(), iName);
}

ORXISpecObject_var ChoiceTest::MakeUpdated(const ChoiceDeclaration& iDeclaration, const char* iName)
{
    const ORXISpecObject_var choice = Make(iDeclaration, iName);
    EXPECT_EQ(ChoiceOf(choice)->Update(), S_OK);
    return choice;
}

void ChoiceTest::AddConfigRecord(const ORXISpecObject_var& iChoice, const char* iPath, const char* iCondition,
                                 const char* iConfig)
{
    const ORXISpecObject_var record = Create("VYRCfdConfigItem", "ConfigItem");
    if (iPath != nullptr)
        Write(record, "path", iPath);
    if (iCondition != nullptr)
        Write(record, "condition", iCondition);
    if (iConfig != nullptr)
        Write(record, "config", iConfig);
    const ORXISpecAttrAccess_var access = At(iChoice, "defaultManagement");
    const ORXISpecAttrKey_var key = KeyOf(access, "configuration");
    ASSERT_EQ(access->InsertAtPosition(key, record, access->GetListSize(key) + 1), S_OK);
}

const ChoiceDeclaration& ThreeChoices()
{
    static const ChoiceDeclaration three = {
        {"alpha", "beta", "gamma"}, {"TypeAlpha", "TypeBeta", "TypeGamma"}, "alpha", "", ""};
    return three;
}

std::vector<ORXUnicodeString> Texts(const Lines& iTexts)
{
    std::vector<ORXUnicodeString> texts;
    for (const std::string& text : iTexts)
        texts.emplace_back(text.c_str());
    return texts;
}

VYRICfdChoice_var ChoiceOf(const ORXISpecObject_var& iObject)
{
    return iObject;
}

VYRICfdConfigurable_var ConfigurableOf(const ORXISpecObject_var& iObject)
{
    return iObject;
}

Lines AllowedOf(const ORXISpecObject_var& iChoice)
{
    const ORXICkeManipulator_var manipulator = ValueParameter(iChoice)->GetManipulator();
    if (!manipulator)
        return {"(no manipulator)"};
    ORXListValORXUnicodeString values;
    EXPECT_EQ(manipulator->GetAllowedValues(values), S_OK);
    Lines allowed;
    for (int i = 1; i <= values.Size(); ++i)
        allowed.push_back(values[i].CastToCharPtr());
    return allowed;
}

ORXISpecObject_var DataOf(const ORXISpecObject_var& iChoice)
{
    const ORXISpecAttrAccess_var access = AccessOf(iChoice);
    return ORXISpecObject_var::Adopt(access->GetSpecObject(KeyOf(access, "Data")));
}

std::string DataTypeOf(const ORXISpecObject_var& iChoice)
{
    const ORXISpecObject_var data = DataOf(iChoice);
    return !data ? "" : data->GetType().CastToCharPtr();
}

void WriteTexts(const ORXISpecObject_var& iObject, const char* iName, const Lines& iTexts)
{
    const ORXISpecAttrAccess_var access = AccessOf(iObject);
    ORXListValORXUnicodeString list;
    for (const std::string& text : iTexts)
        list.Append(text.c_str());
    ASSERT_EQ(access->SetStringList(KeyOf(access, iName), list), S_OK);
}

void KeepDefault(const ORXISpecObject_var& iChoice, const char* iDefault)
{
    const ORXICkeParm_var parameter =
        ORXCkeGlobalFunctions::GetVolatileFactory()->CreateParm(ValueParameter(iChoice)->GetType(), "default");
    parameter->Valuate(ORXUnicodeString(iDefault));
    ORXICkeInst_var value = parameter->GetValue();
    ASSERT_EQ(DefaultManagementOf(iChoice)->SetCustomDefault("value", value), S_OK);
}

bool HasCustomDefault(const ORXISpecObject_var& iChoice)
{
    unsigned char has = 7;
    EXPECT_EQ(DefaultManagementOf(iChoice)->HasCustomDefault("value", has), S_OK);
    return has == ORXTrue;
}

Lines Only(const Lines& iLines, std::initializer_list<std::string_view> iWords)
{
    Lines kept;
    for (const std::string& line : iLines)
    {
        const std::string_view word = std::string_view(line).substr(0, line.find(' '));
        if (std::find(iWords.begin(), iWords.end(), word) != iWords.end())
            kept.push_back(line);
    }
    return kept;
}

Lines ChoiceRecorder::TakeSteps()
{
    return Only(Take(), {"data", "name", "create", "take", "fix", "allow", "complete", "dispatch"});
}
