/**
 * @file
 * What the module prints outside function scopes, in processes with and without the channels. The levels of these
 * prints filter nothing: a channel is on or off.
 */

#include <string>
#include <vector>

#include "Configurations.h"
#include "ModuleTest.h"
#include "ORXKeySetVYRCfdBase.h"
#include "TraceCapture.h"
#include "TraceNames.h"

namespace
{
using Lines = std::vector<std::string>;

bool IsOn(const char* iChannel)
{
    return !TraceVariable(iChannel).empty() || !TraceVariable("ALL").empty();
}

class DirectPrints : public ModuleTest
{
protected:
    void SetUp() override
    {
        ModuleTest::SetUp();
        if (IsOn("FEATURES") && VYRCfdTraceManager::_ControlFeatures->TraGetLevelMax() > 2)
            GTEST_SKIP() << "the scopes would stand between the lines";
        m_values = Create("VYRCfdValues", "Values.1");
    }

    ORXISpecObject_var m_values;
};

TEST_F(DirectPrints, AnErrorThatAKeyFunctionNavigatesFurther_IsShownEachTime)
{
    const VYRCfdObjectAccess broken(ORXUnicodeString("broken link 100%s%n"));
    TraceCapture traces;
    broken.Get(VYRCFDBASE(Choice, value), 0);
    broken[VYRCFDBASE(Choice, value)];
    broken.Ref(VYRCFDBASE(Choice, value));
    broken[VYRCFDBASE(Choice, value)][VYRCFDBASE(Choice, Data)];
    const std::string line = "ERROR: broken link 100%s%n\n";
    EXPECT_EQ(traces.Take(), IsOn("DEBUG") ? (Lines{line, line, line, line, line}) : Lines{});
}

TEST_F(DirectPrints, EveryOtherMove_HandsTheErrorOnInSilence)
{
    const VYRCfdObjectAccess broken(ORXUnicodeString("broken link"));
    ORXISpecAttrKey* const noKey = nullptr;
    TraceCapture traces;
    broken.Get("x");
    broken.Get("x", 0);
    broken.Get(noKey, 0);
    broken.Get(1);
    broken["x"];
    broken[1];
    broken[noKey];
    broken.Ref("x");
    broken.Ref(noKey);
    broken.GetByPath("a/b");
    broken.GetParent();
    EXPECT_EQ(traces.Take(), Lines{});
}

TEST_F(DirectPrints, ACursorWithoutAnError_ShowsNone)
{
    TraceCapture traces;
    Cursor(m_values)[VYRCFDBASE(Values, defaultManagement)];
    VYRCfdObjectAccess{ORXUnicodeString()}[VYRCFDBASE(Values, defaultManagement)];
    EXPECT_EQ(traces.Take(), Lines{});
}

TEST_F(DirectPrints, AnApplication_IsShownOnTheDecorationChannelAndANullTargetOnTheDebugChannel)
{
    Configurations configurations(
        {Configuration("outer%s", R"([ { "path": "no such%d", "config": "inner" } ])"), Configuration("inner", "[]")});
    TraceCapture traces;
    EXPECT_EQ(configurations.Apply(m_values, "outer%s"), S_OK);
    Lines expected;
    if (IsOn("DECORATE"))
        expected.push_back("Applying config: outer%s\n");
    if (IsOn("DEBUG"))
        expected.push_back("Path has null target: no such%d\n");
    if (IsOn("DECORATE"))
        expected.push_back("Applying config: inner\n");
    EXPECT_EQ(traces.Take(), expected);
}
} // namespace
