/**
 * @file
 * Which function scopes print at which level, with the qualified names of the functions. Each value of
 * VYRCFDTRACES_FEATURES is a process of its own; what is expected is cut down to what that value lets through.
 */

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "Configurations.h"
#include "ModuleTest.h"
#include "ORXKeySetVYRCfdBase.h"
#include "TraceCapture.h"
#include "TraceNames.h"
#include "VYRCfdConfigurator.h"
#include "VYRCfdObjectCondition.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneServices.h"

namespace
{
using Lines = std::vector<std::string>;
using Access = VYRCfdObjectAccess;

constexpr const char* Catalog = R"({
  "catalog": "ScopeLevels", "uses": ["VYRCfdBase"],
  "types": [
    { "name": "ScopePart",
      "attributes": [
        { "name": "title", "kind": "string", "default": "a" },
        { "name": "iterations", "kind": "integer", "default": 5 },
        { "name": "relaxation", "kind": "real", "default": 0.5 },
        { "name": "steady", "kind": "boolean", "default": true },
        { "name": "monitors", "kind": "list", "of": "string", "default": ["lift"] },
        { "name": "counts", "kind": "list", "of": "integer", "default": [1] },
        { "name": "levels", "kind": "list", "of": "real", "default": [1.5] },
        { "name": "switches", "kind": "list", "of": "boolean", "default": [true] },
        { "name": "zones", "kind": "list", "of": "component" },
        { "name": "peer", "kind": "reference" } ] },
    { "name": "ScopeValues", "base": "VYRCfdValues",
      "attributes": [ { "name": "title", "kind": "string", "default": "a" } ] } ] })";

/// A value of the variable, and the deepest level that it prints. The comparison decides: 103 to 109 print none, and
/// 110 to 149 only some.
struct Depth
{
    const char* value;
    int deepest;
};

constexpr Depth Depths[] = {
    {"", 0},    {"2", 0},    {"3", 0},    {"9", 0},    {"10", 10},   {"14", 10},   {"15", 15},  {"19", 15},
    {"20", 20}, {"25", 25},  {"30", 30},  {"40", 40},  {"49", 40},   {"50", 50},   {"102", 50}, {"103", 0},
    {"109", 0}, {"110", 10}, {"149", 40}, {"150", 50}, {"1024", 50}, {"1025", 50}, {"0", 50},   {"abc", 50},
};

class ScopeLevels : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        const std::string value = TraceVariable("FEATURES");
        const auto* const found =
            std::find_if(std::begin(Depths), std::end(Depths), [&](const Depth& iRow) { return value == iRow.value; });
        ASSERT_NE(found, std::end(Depths)) << "no expectation for the value " << value;
        if (value.empty() && !TraceVariable("ALL").empty())
            GTEST_SKIP() << "the environment switches traces on";
        m_deepest = found->deepest;
        Declare(Catalog);
        m_part = Create("ScopePart", "Part.1");
        m_values = Create("ScopeValues", "Values.1");
    }

    static Lines Printed(const std::function<void()>& iAction)
    {
        TraceCapture traces;
        iAction();
        return traces.Take();
    }

    int m_deepest = 0;
    ORXISpecObject_var m_part;
    ORXISpecObject_var m_values;
};

// ---- whole traces ---------------------------------------------------------------------------------------------------

/// A scope with those that are entered within it.
struct Scope
{
    std::string name;
    int level;
    std::vector<Scope> inner = {};
};

/// What a scope prints, with all that is deeper left out; what is left moves to the left.
void Render(const Scope& iScope, int iDeepest, int iIndentation, Lines& oLines)
{
    const bool isPrinted = iScope.level <= iDeepest;
    const std::string blanks(static_cast<std::size_t>(2 * iIndentation), ' ');
    if (isPrinted)
        oLines.push_back(blanks + "> " + iScope.name + " [" + std::to_string(iScope.level) + "]\n");
    for (const Scope& inner : iScope.inner)
        Render(inner, iDeepest, isPrinted ? iIndentation + 1 : iIndentation, oLines);
    if (isPrinted)
        oLines.push_back(blanks + "< " + iScope.name + "\n");
}

Lines Render(const std::vector<Scope>& iScopes, int iDeepest)
{
    Lines lines;
    for (const Scope& scope : iScopes)
        Render(scope, iDeepest, 0, lines);
    return lines;
}

const Scope Constructed{"VYRCfdObjectAccess::VYRCfdObjectAccess", 50};
const Scope Destroyed{"VYRCfdObjectAccess::~VYRCfdObjectAccess", 50};
const Scope Assigned{"VYRCfdObjectAccess::operator=", 30};
const Scope GetParm{"VYRCfdObjectAccess::GetParm", 25};

Scope Get(std::vector<Scope> iInner)
{
    return {"VYRCfdObjectAccess::Get", 30, std::move(iInner)};
}

TEST_F(ScopeLevels, LifeOfACursor_PrintsConstructorsAssignmentsAndDestructors)
{
    const Lines printed = Printed([&] {
        const Access first;
        Access second(first);
        second = first;
        second = ORXBaseUnknown_var(m_part);
        const Access third{ORXUnicodeString("text")};
        const Access fourth{ORXBaseUnknown_var(m_part)};
    });
    EXPECT_EQ(printed, Render({Constructed, Constructed, Assigned, Assigned, Constructed, Constructed, Destroyed,
                               Destroyed, Destroyed, Destroyed},
                              m_deepest));
}

TEST_F(ScopeLevels, AChain_PrintsItsLinksNested)
{
    const Access part = Cursor(m_part);
    const Lines printed = Printed([&] {
        double value = 0.0;
        part["relaxation"].GetDouble(value);
    });
    EXPECT_EQ(printed, Render({Get({Get({Constructed})}), {"VYRCfdObjectAccess::GetDouble", 25, {GetParm}}, Destroyed},
                              m_deepest));
}

TEST_F(ScopeLevels, AFailedLink_PrintsTheSearchForSons)
{
    const Access part = Cursor(m_part);
    EXPECT_EQ(Printed([&] { part["no such"]; }),
              Render({Get({Get({Constructed}), Destroyed, Constructed}), Destroyed}, m_deepest));
}

TEST_F(ScopeLevels, SetInteger_PrintsTheTestOfTheTypeWithinIt)
{
    const Access cursor = Cursor(m_part)["iterations"];
    EXPECT_EQ(
        Printed([&] { cursor.SetInteger(1); }),
        Render({{"VYRCfdObjectAccess::SetInteger", 20, {GetParm, {"VYRCfdObjectAccess::IsInteger", 25, {GetParm}}}}},
               m_deepest));
}

TEST_F(ScopeLevels, AWrite_PrintsTheNotificationsWithinIt)
{
    const Access cursor = Cursor(m_values)["title"];
    // The first write makes the extensions and the flag.
    ASSERT_EQ(cursor.SetString("b"), S_OK);
    EXPECT_EQ(Printed([&] { cursor.SetString("c"); }),
              Render({{"VYRCfdObjectAccess::SetString",
                       20,
                       {GetParm,
                        {"VYRECfdValuesInstance::AdviseAttributeChanged",
                         10,
                         {{"VYRCfdDefaultManagementAdp::SetIsSet",
                           20,
                           {{"VYRECfdDefaultManagementInstance::AdviseAttributeChanged", 10}}}}}}}},
                     m_deepest));
}

TEST_F(ScopeLevels, ACondition_PrintsItsConstructorsAndTheParsing)
{
    const Access part = Cursor(m_part);
    const Scope constructed{"VYRCfdObjectCondition::VYRCfdObjectCondition", 20};
    const Scope destroyed{"VYRCfdObjectCondition::~VYRCfdObjectCondition", 20, {}};
    Lines printed = Printed([&] {
        const VYRCfdObjectCondition condition{ORXUnicodeString("text")};
        static_cast<void>(static_cast<bool>(condition));
    });
    // The cursor within is a member: made before its scope begins, gone after it has ended.
    EXPECT_EQ(printed, Render({Constructed, constructed, destroyed, Destroyed}, m_deepest))
        << "the evaluation has no scope of its own";

    printed = Printed([&] {
        const VYRCfdObjectCondition condition;
        const VYRCfdObjectCondition copy(condition);
    });
    EXPECT_EQ(printed, Render({Constructed,
                               {"VYRCfdObjectCondition::VYRCfdObjectCondition", 10},
                               Constructed,
                               constructed,
                               destroyed,
                               Destroyed,
                               destroyed,
                               Destroyed},
                              m_deepest));

    printed = Printed([&] { const VYRCfdObjectCondition condition(part, "iterations==5"); });
    EXPECT_EQ(
        printed,
        Render({Constructed,
                {"VYRCfdObjectCondition::VYRCfdObjectCondition", 20, {{"VYRCfdObjectCondition::ParseCondition", 20}}},
                destroyed,
                Destroyed},
               m_deepest));
}

TEST_F(ScopeLevels, AnApplication_PrintsTheLoadOnce)
{
    Configurations configurations({Configuration("empty", "[]")});
    const Scope load{"VYRCfdConfigurator::LoadConfigs", 10};
    const Scope find{"VYRCfdConfigurator::GetConfigurationObject", 20};
    EXPECT_EQ(Printed([&] { EXPECT_EQ(configurations.Apply(m_values, "empty"), S_FALSE); }),
              Render({{"VYRCfdConfigurator::ApplyConfiguration", 15, {load, find}}}, m_deepest));
    EXPECT_EQ(Printed([&] { EXPECT_EQ(configurations.Apply(m_values, "empty"), S_FALSE); }),
              Render({{"VYRCfdConfigurator::ApplyConfiguration", 15, {find}}}, m_deepest));
}

class NoFiles : public VYRCfdConfigurator
{
public:
    explicit NoFiles(std::vector<ORXUnicodeString> iFiles = {}) : VYRCfdConfigurator(iFiles) {}
};

TEST_F(ScopeLevels, GetConfigurationMap_PrintsTheLoadWithinIt)
{
    VYRStandalone::SetOfficialVariable("ORXInstallPath", "nowhere");
    NoFiles configurator;
    EXPECT_EQ(Printed([&] {
                  VYRCfdConfigurationMap configurations;
                  EXPECT_EQ(configurator.GetConfigurationMap(configurations), S_OK);
              }),
              Render({{"VYRCfdConfigurator::GetConfigurationMap", 30, {{"VYRCfdConfigurator::LoadConfigs", 10}}}},
                     m_deepest));
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
}

// ---- every operation ------------------------------------------------------------------------------------------------

/// An operation of the cursor and the level of its scope, 0 for none.
struct Operation
{
    const char* name;
    int level;
    /// Attribute at which the cursor stands; empty for the object.
    const char* attribute;
    std::function<void(const Access&)> call;
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

template <class Answer> auto Ask(Answer (Access::*iQuestion)() const)
{
    return [iQuestion](const Access& iCursor) { static_cast<void>((iCursor.*iQuestion)()); };
}

using Text = ORXUnicodeString;
ORXISpecAttrKey* const NoKey = nullptr;

const Operation Operations[] = {
    {"Get", 30, "", [](const Access& iCursor) { iCursor.Get("title"); }},
    {"Get", 30, "", [](const Access& iCursor) { iCursor.Get("title", 0); }},
    {"Get", 30, "", [](const Access& iCursor) { iCursor.Get(NoKey, 0); }},
    {"Get", 30, "", [](const Access& iCursor) { iCursor.Get(VYRCFDBASE(Choice, value), 0); }},
    {"Get", 25, "zones", [](const Access& iCursor) { iCursor.Get(1); }},
    {"Ref", 25, "", [](const Access& iCursor) { iCursor.Ref("title"); }},
    {"Ref", 25, "", [](const Access& iCursor) { iCursor.Ref(NoKey); }},
    {"Ref", 25, "", [](const Access& iCursor) { iCursor.Ref(VYRCFDBASE(Choice, value)); }},
    {"GetByPath", 25, "", [](const Access& iCursor) { iCursor.GetByPath("zones"); }},
    {"GetByPath", 25, "", [](const Access& iCursor) { iCursor.GetByPath("peer/x/y"); }},
    {"ApplyCondition", 25, "", [](const Access& iCursor) { iCursor.ApplyCondition("iterations==5"); }},
    {"GetParm", 25, "title", Ask(&Access::GetParm)},
    {"GetPlainString", 25, "title", Read<Text>(&Access::GetPlainString)},
    {"SetPlainString", 20, "title", [](const Access& iCursor) { iCursor.SetPlainString("x"); }},
    {"GetString", 25, "title", Read<Text>(&Access::GetString)},
    {"GetString", 25, "monitors", ReadEntry<Text>(&Access::GetString)},
    {"SetString", 20, "title", [](const Access& iCursor) { iCursor.SetString("x"); }},
    {"SetString", 20, "monitors", [](const Access& iCursor) { iCursor.SetString("x", 1); }},
    {"GetInteger", 25, "iterations", Read<int>(&Access::GetInteger)},
    {"GetInteger", 25, "counts", ReadEntry<int>(&Access::GetInteger)},
    {"SetInteger", 20, "iterations", [](const Access& iCursor) { iCursor.SetInteger(1); }},
    {"SetInteger", 20, "counts", [](const Access& iCursor) { iCursor.SetInteger(1, 1); }},
    {"GetDouble", 25, "relaxation", Read<double>(&Access::GetDouble)},
    {"GetDouble", 25, "levels", ReadEntry<double>(&Access::GetDouble)},
    {"SetDouble", 20, "relaxation", [](const Access& iCursor) { iCursor.SetDouble(1.0); }},
    {"SetDouble", 20, "levels", [](const Access& iCursor) { iCursor.SetDouble(1.0, 1); }},
    {"GetBoolean", 25, "steady", Read<bool>(&Access::GetBoolean)},
    {"GetBoolean", 25, "switches", ReadEntry<bool>(&Access::GetBoolean)},
    {"SetBoolean", 20, "steady", [](const Access& iCursor) { iCursor.SetBoolean(true); }},
    {"SetBoolean", 20, "switches", [](const Access& iCursor) { iCursor.SetBoolean(true, 1); }},
    {"IsString", 25, "title", Ask(&Access::IsString)},
    {"IsInteger", 25, "title", Ask(&Access::IsInteger)},
    {"IsDouble", 25, "title", Ask(&Access::IsDouble)},
    {"IsBoolean", 25, "title", Ask(&Access::IsBoolean)},
    {"IsEnum", 25, "title", Ask(&Access::IsEnum)},
    {"IsList", 25, "title", Ask(&Access::IsList)},
    {"IsObject", 25, "title", Ask(&Access::IsObject)},
    {"IsObjectList", 25, "title", Ask(&Access::IsObjectList)},
    {"GetListSize", 25, "zones", Read<int>(&Access::GetListSize)},
    {"GetStrings", 25, "monitors", Read<std::vector<Text>>(&Access::GetStrings)},
    {"GetStrings", 25, "monitors", Read<ORXListValORXUnicodeString>(&Access::GetStrings)},
    {"GetIntegers", 25, "counts", Read<std::vector<int>>(&Access::GetIntegers)},
    {"GetDoubles", 25, "levels", Read<std::vector<double>>(&Access::GetDoubles)},
    {"GetBooleans", 25, "switches", Read<std::vector<bool>>(&Access::GetBooleans)},
    {"SetStrings", 20, "monitors", [](const Access& iCursor) { iCursor.SetStrings(std::vector<Text>{"x"}); }},
    {"SetStrings", 20, "monitors", [](const Access& iCursor) { iCursor.SetStrings(ORXListValORXUnicodeString()); }},
    {"List", 30, "zones",
     [](const Access& iCursor) {
         std::vector<Access> objects;
         iCursor.List(objects);
     }},
    // The form with a host list prints no scope but that of the other form, within it.
    {"List", 30, "zones", Read<ORXListValORXBaseUnknown_var>(&Access::List)},
    {"SetList", 20, "zones", [](const Access& iCursor) { iCursor.SetList(std::vector<Access>()); }},
    {"SetList", 20, "zones",
     [](const Access& iCursor) {
         ORXListValORXBaseUnknown_var objects;
         iCursor.SetList(objects);
     }},
    {"Remove", 20, "zones", [](const Access& iCursor) { iCursor.Remove(iCursor.Self()); }},
    {"RemoveAll", 20, "zones", Ask(&Access::RemoveAll)},
    {"RemovePosition", 20, "zones",
     [](const Access& iCursor) {
         iCursor.RemovePosition(1);
         Reported();
     }},
    {"CleanList", 20, "zones", [](const Access& iCursor) { iCursor.CleanList(IID_ORXISpecObject); }},
    // No scope of their own.
    {"GetParent", 0, "title", Ask(&Access::GetParent)},
    {"GetName", 0, "title", Ask(&Access::GetName)},
    {"GetID", 0, "", Ask(&Access::GetID)},
    {"GetType", 0, "", Ask(&Access::GetType)},
    {"IsSubTypeOf", 0, "", [](const Access& iCursor) { static_cast<void>(iCursor.IsSubTypeOf("ScopePart")); }},
    {"IsNull", 0, "title", Ask(&Access::IsNull)},
    {"HasError", 0, "title", Ask(&Access::HasError)},
    {"GetError", 0, "title", Ask(&Access::GetError)},
    {"Self", 0, "title", Ask(&Access::Self)},
    {"Access", 0, "title", Ask(&Access::Access)},
    {"operator!", 0, "title", [](const Access& iCursor) { static_cast<void>(!iCursor); }},
    {"operator==", 0, "title", [](const Access& iCursor) { static_cast<void>(iCursor == iCursor); }},
    {"operator!=", 0, "title", [](const Access& iCursor) { static_cast<void>(iCursor != iCursor); }},
    {"operator[]", 0, "", [](const Access& iCursor) { iCursor["title"]; }},
    {"operator[]", 0, "zones", [](const Access& iCursor) { iCursor[1]; }},
    {"SplitPath", 0, "",
     [](const Access&) {
         Text head;
         Text tail;
         Access::SplitPath("a/b", head, tail);
     }},
};

/// Nothing but what can be seen of one line: its indentation, the name and the level.
bool IsDeeper(const std::string& iLine, int iDeepest)
{
    const std::size_t bracket = iLine.find('[');
    return bracket != std::string::npos && std::stoi(iLine.substr(bracket + 1)) > iDeepest;
}

TEST_F(ScopeLevels, EveryOperationOfTheCursor_PrintsAtItsLevel)
{
    const Access part = Cursor(m_part);
    for (const Operation& operation : Operations)
    {
        SCOPED_TRACE(std::string(operation.name) + " at \"" + operation.attribute + '"');
        const Access cursor = *operation.attribute == '\0' ? part : part.Get(operation.attribute, 0);
        const Lines printed = Printed([&] { operation.call(cursor); });

        const std::string name = std::string("VYRCfdObjectAccess::") + operation.name;
        const std::string first = "> " + name + " [" + std::to_string(operation.level) + "]\n";
        const bool isPrinted = operation.level != 0 && operation.level <= m_deepest;
        EXPECT_EQ(!printed.empty() && printed.front() == first, isPrinted);
        EXPECT_EQ(std::count(printed.begin(), printed.end(), "< " + name + "\n") > 0, isPrinted);
        for (const std::string& line : printed)
        {
            EXPECT_FALSE(IsDeeper(line, m_deepest)) << line;
            EXPECT_TRUE(operation.level != 0 || line.find("> " + name + " [") == std::string::npos) << line;
        }
    }
}

/// Questions about an object enter nothing at all, not even a cursor.
TEST_F(ScopeLevels, QuestionsOfACursor_PrintNothing)
{
    const Access cursor = Cursor(m_part);
    const Access title = cursor["title"];
    EXPECT_EQ(Printed([&] {
                  static_cast<void>(title.IsNull());
                  static_cast<void>(title.HasError());
                  static_cast<void>(title.GetError());
                  static_cast<void>(title == cursor);
                  static_cast<void>(title != cursor);
                  static_cast<void>(title.Self());
                  static_cast<void>(title.Access());
                  static_cast<void>(title.GetName());
                  static_cast<void>(cursor.GetID());
                  static_cast<void>(cursor.GetType());
                  static_cast<void>(cursor.IsSubTypeOf("ScopePart"));
              }),
              Lines{});
}
} // namespace
