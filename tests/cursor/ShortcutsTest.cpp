/**
 * @file
 * What several host calls in one must not change: that each is made where somebody watches, and what a host without
 * them sees.
 */

#include <cstdlib>
#include <cstring>

#include "CursorTest.h"
#include "EnteredScopes.h"
#include "ORXSpecAttrShortcuts.h"
#include "VYRStandaloneInstruments.h"

namespace
{
class Shortcuts : public CursorTest
{
};

TEST_F(Shortcuts, StandAside_InTheRunThatIsWithoutThem)
{
    const char* const loadedFirst = std::getenv("LD_PRELOAD");
    const bool isWithout = loadedFirst != nullptr && std::strstr(loadedFirst, "without_shortcuts") != nullptr;
    const bool hasNone = ORXGetSpecAttrShortcuts == nullptr || ORXGetSpecAttrShortcuts() == nullptr;
    EXPECT_EQ(hasNone, isWithout);
}

/// Plants a fault for as long as it lives.
class Planted
{
public:
    Planted(const char* iOperation, const char* iSubject)
    {
        VYRStandalone::Fault fault;
        fault.operation = iOperation;
        fault.subject = iSubject;
        VYRStandalone::PlantFault(fault);
    }
    ~Planted() { VYRStandalone::ClearFaults(); }
    Planted(const Planted&) = delete;
    Planted& operator=(const Planted&) = delete;
};

TEST_F(Shortcuts, StandAside_WhereOneOfTheSingleCallsFails)
{
    {
        const Planted fault("GetSpecObject", "material");
        EXPECT_TRUE(IsError(Part().GetByPath("material/density"), "Null initialization c"));
    }
    {
        const Planted fault("GetAttrKey", "density");
        EXPECT_TRUE(IsError(Part().GetByPath("material/density"), "No attribute density"));
    }
    {
        const Planted fault("GetSpecObject", "material");
        EXPECT_TRUE(IsError(Part()["material"], "Null initialization c"));
    }
    EXPECT_EQ(Reported(), Records{});
}

TEST_F(Shortcuts, StandAside_WhereReadsAndWritesFail)
{
    double value = 7.0;
    {
        const Planted fault("GetParm", "relaxation");
        EXPECT_EQ(At("relaxation").GetDouble(value), E_FAIL);
        EXPECT_EQ(value, 7.0);
    }
    {
        const Planted fault("Valuate", "relaxation");
        EXPECT_EQ(At("relaxation").SetDouble(0.1), S_OK) << "a write that the host refuses has no status";
    }
    EXPECT_EQ(At("relaxation").GetDouble(value), S_OK);
    EXPECT_EQ(value, 0.7);
    EXPECT_EQ(Reported(), (Records{Assertion("spParm", In("GetDouble"))}));
}

TEST_F(Shortcuts, StandAside_WhileScopesAreShown)
{
    const std::vector<std::string> step = {"> VYRCfdObjectAccess::GetByPath [25]", "  > VYRCfdObjectAccess::Get [30]",
                                           "    > VYRCfdObjectAccess::Get [30]"};
    std::vector<std::string> expected = step;
    expected.insert(expected.end(), step.begin(), step.end());
    expected.push_back("> VYRCfdObjectAccess::GetDouble [25]");
    expected.push_back("  > VYRCfdObjectAccess::GetParm [25]");
    EXPECT_EQ(EnteredScopes(30,
                            [&] {
                                double value = 0.0;
                                Part().GetByPath("material/density").GetDouble(value);
                            }),
              expected);
}

TEST_F(Shortcuts, StandAside_WhileWritesAreRecorded)
{
    VYRStandalone::CallRecorder recorder;
    At("relaxation").SetDouble(0.25);
    EXPECT_EQ(recorder.Take(), (std::vector<std::string>{"write Part.1.relaxation = 0.25"}));
}

TEST_F(Shortcuts, OfANameWithAZeroByte_SeeWhatTheHostSees)
{
    const ORXUnicodeString name("title\0x", 7);
    EXPECT_TRUE(StandsAt(Part()[name], m_part, "title"));
}
} // namespace
