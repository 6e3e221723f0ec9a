/**
 * @file
 * Which operations of the cursor reset the error status and which leave it alone. The unevenness is part of the
 * interface: callers that bracket several operations with one look at the status rely on it.
 */

#include <functional>
#include <string>
#include <vector>

#include "CursorTest.h"
#include "ORXKeySetVYRCfdBase.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class ErrorStatus : public CursorTest
{
protected:
    VYRCfdObjectAccess Standing(const std::string& iAttribute) const
    {
        if (iAttribute.empty())
            return Part();
        return iAttribute == "solver" ? Part().Ref("solver") : At(iAttribute.c_str());
    }

    static bool Resets(const std::function<void()>& iAction)
    {
        VYRStandalone::SetErrorStatus(7);
        iAction();
        const unsigned char status = VYRStandalone::ErrorStatus();
        EXPECT_TRUE(status == 7 || status == 0) << static_cast<int>(status);
        VYRStandalone::SetErrorStatus(0);
        return status == 0;
    }
};

using Access = VYRCfdObjectAccess;
using Text = ORXUnicodeString;

struct Operation
{
    const char* name;
    /// Attribute at which the cursor stands, and at which the operation succeeds; empty for the object.
    const char* attribute;
    std::function<void(const Access&)> call;
    bool resets;
};

template <class Value> auto Read(HRESULT (Access::*iRead)(Value&) const)
{
    return [iRead](const Access& iCursor) {
        Value value{};
        static_cast<void>((iCursor.*iRead)(value));
    };
}

template <class Value> auto ReadEntry(HRESULT (Access::*iRead)(Value&, int) const)
{
    return [iRead](const Access& iCursor) {
        Value value{};
        static_cast<void>((iCursor.*iRead)(value, 1));
    };
}

auto Test(bool (Access::*iTest)() const)
{
    return [iTest](const Access& iCursor) { static_cast<void>((iCursor.*iTest)()); };
}

ORXISpecAttrKey* const NoKey = nullptr;

const Operation Operations[] = {
    // Construction, moves and questions.
    {"copy", "", [](const Access& iCursor) { const Access copy(iCursor); }, false},
    {"operator=", "", [](const Access& iCursor) { Access().operator=(iCursor); }, false},
    {"operator= of an object", "", [](const Access& iCursor) { Access().operator=(iCursor.Self()); }, false},
    {"Get(name)", "", [](const Access& iCursor) { iCursor.Get("title"); }, false},
    {"Get(name, index)", "", [](const Access& iCursor) { iCursor.Get("title", 0); }, false},
    {"Get(key, index)", "", [](const Access& iCursor) { iCursor.Get(NoKey, 0); }, false},
    {"Get(key function, index)", "", [](const Access& iCursor) { iCursor.Get(VYRCFDBASE(Choice, value), 0); }, false},
    {"Get(index)", "zones", [](const Access& iCursor) { iCursor.Get(1); }, false},
    {"[name]", "zones", [](const Access& iCursor) { iCursor["Zone.1"]; }, false},
    {"Ref(name)", "", [](const Access& iCursor) { iCursor.Ref("material"); }, false},
    {"Ref(key)", "", [](const Access& iCursor) { iCursor.Ref(NoKey); }, false},
    {"Ref(key function)", "", [](const Access& iCursor) { iCursor.Ref(VYRCFDBASE(Choice, value)); }, false},
    {"GetByPath", "", [](const Access& iCursor) { iCursor.GetByPath("zones/1/area"); }, false},
    {"GetParent", "title", [](const Access& iCursor) { iCursor.GetParent(); }, false},
    {"GetName", "title", [](const Access& iCursor) { static_cast<void>(iCursor.GetName()); }, false},
    {"GetID", "", [](const Access& iCursor) { static_cast<void>(iCursor.GetID()); }, false},
    {"GetType", "", [](const Access& iCursor) { static_cast<void>(iCursor.GetType()); }, false},
    {"IsSubTypeOf", "", [](const Access& iCursor) { static_cast<void>(iCursor.IsSubTypeOf("CursorPart")); }, false},
    {"IsNull", "title", Test(&Access::IsNull), false},
    {"HasError", "title", Test(&Access::HasError), false},
    {"GetParm", "title", [](const Access& iCursor) { iCursor.GetParm(); }, false},
    {"ApplyCondition", "", [](const Access& iCursor) { iCursor.ApplyCondition("iterations==500"); }, true},
    // Scalars.
    {"GetPlainString", "title", Read<Text>(&Access::GetPlainString), false},
    {"SetPlainString", "title", [](const Access& iCursor) { iCursor.SetPlainString("x"); }, false},
    {"GetString", "title", Read<Text>(&Access::GetString), false},
    {"SetString", "title", [](const Access& iCursor) { iCursor.SetString("x"); }, false},
    {"GetInteger", "iterations", Read<int>(&Access::GetInteger), false},
    {"GetDouble", "relaxation", Read<double>(&Access::GetDouble), true},
    {"SetDouble", "relaxation", [](const Access& iCursor) { iCursor.SetDouble(0.5); }, true},
    {"GetBoolean", "steady", Read<bool>(&Access::GetBoolean), false},
    {"SetBoolean", "steady", [](const Access& iCursor) { iCursor.SetBoolean(false); }, false},
    // Entries.
    {"GetString(index)", "monitors", ReadEntry<Text>(&Access::GetString), false},
    {"SetString(index)", "monitors", [](const Access& iCursor) { iCursor.SetString("x", 1); }, false},
    {"GetInteger(index)", "counts", ReadEntry<int>(&Access::GetInteger), false},
    {"SetInteger(index)", "counts", [](const Access& iCursor) { iCursor.SetInteger(1, 1); }, false},
    {"GetDouble(index)", "levels", ReadEntry<double>(&Access::GetDouble), true},
    {"SetDouble(index)", "levels", [](const Access& iCursor) { iCursor.SetDouble(0.5, 1); }, true},
    {"GetBoolean(index)", "switches", ReadEntry<bool>(&Access::GetBoolean), false},
    {"SetBoolean(index)", "switches", [](const Access& iCursor) { iCursor.SetBoolean(true, 1); }, false},
    // Tests.
    {"IsString", "title", Test(&Access::IsString), true},
    {"IsInteger", "iterations", Test(&Access::IsInteger), true},
    {"IsDouble", "relaxation", Test(&Access::IsDouble), true},
    {"IsBoolean", "steady", Test(&Access::IsBoolean), true},
    {"IsEnum", "scheme", Test(&Access::IsEnum), true},
    {"IsList", "zones", Test(&Access::IsList), false},
    {"IsObject", "", Test(&Access::IsObject), false},
    {"IsObjectList", "zones", Test(&Access::IsObjectList), false},
    // Lists.
    {"GetListSize", "zones", Read<int>(&Access::GetListSize), false},
    {"GetStrings", "monitors", Read<std::vector<Text>>(&Access::GetStrings), false},
    {"GetStrings into a host list", "monitors", Read<ORXListValORXUnicodeString>(&Access::GetStrings), false},
    {"GetIntegers", "counts", Read<std::vector<int>>(&Access::GetIntegers), false},
    {"GetDoubles", "levels", Read<std::vector<double>>(&Access::GetDoubles), false},
    {"GetBooleans", "switches", Read<std::vector<bool>>(&Access::GetBooleans), false},
    {"SetStrings", "monitors", [](const Access& iCursor) { iCursor.SetStrings(std::vector<Text>{"x"}); }, false},
    {"SetStrings of a host list", "monitors",
     [](const Access& iCursor) { iCursor.SetStrings(ORXListValORXUnicodeString()); }, false},
    {"List", "zones",
     [](const Access& iCursor) {
         std::vector<Access> objects;
         iCursor.List(objects);
     },
     true},
    {"List into a host list", "zones", Read<ORXListValORXBaseUnknown_var>(&Access::List), true},
    {"SetList", "related", [](const Access& iCursor) { iCursor.SetList(std::vector<Access>()); }, true},
    {"SetList of a host list", "related",
     [](const Access& iCursor) {
         ORXListValORXBaseUnknown_var objects;
         iCursor.SetList(objects);
     },
     true},
    {"SetObject", "solver", [](const Access& iCursor) { iCursor.SetObject(ORXBaseUnknown_var(), 0); }, true},
    {"SetObject of a cursor", "solver", [](const Access& iCursor) { iCursor.SetObject(Access(), 0); }, true},
    {"Remove", "zones", [](const Access& iCursor) { iCursor.Remove(iCursor.Self()); }, true},
    {"RemoveAll", "related", [](const Access& iCursor) { iCursor.RemoveAll(); }, true},
    {"RemovePosition", "zones", [](const Access& iCursor) { iCursor.RemovePosition(1); }, true},
    {"CleanList", "zones", [](const Access& iCursor) { iCursor.CleanList(IID_ORXISpecObject); }, true},
};

TEST_F(ErrorStatus, IsResetByExactlyTheseOperations)
{
    for (const Operation& operation : Operations)
    {
        AddZone("Zone.1");
        const Access cursor = Standing(operation.attribute);
        EXPECT_EQ(Resets([&] { operation.call(cursor); }), operation.resets) << operation.name;
        EXPECT_EQ(Reported(), Records{}) << operation.name << " is to succeed here";
    }
}

TEST_F(ErrorStatus, IsResetBeforeTheCursorsErrorIsLookedAt)
{
    for (const Operation& operation : Operations)
        EXPECT_EQ(Resets([&] { operation.call(Broken()); }), operation.resets) << operation.name;
    Reported();
}

// SetInteger itself resets nothing, but the test of the type that it makes does.
TEST_F(ErrorStatus, SetInteger_ResetsAsSoonAsItAsksForTheType)
{
    EXPECT_FALSE(Resets([&] { Broken().SetInteger(1); }));
    EXPECT_FALSE(Resets([&] { At("levels").SetInteger(1); }));
    Reported();
    EXPECT_TRUE(Resets([&] { At("iterations").SetInteger(1); }));
}

TEST_F(ErrorStatus, IsSetByNoReport)
{
    Text text;
    EXPECT_EQ(Broken().GetString(text), E_FAIL);
    EXPECT_EQ(VYRStandalone::ErrorStatus(), 0);
    EXPECT_EQ(Reported(), (Records{Error(BrokenText, In("GetString"))}));
}
} // namespace
