/**
 * @file
 * The main configurations of the sample, applied once and again, saved and opened.
 */

#include <algorithm>

#include "FlowTest.h"
#include "ModelLines.h"
#include "SampleGoldens.h"
#include "SampleManagers.h"
#include "SampleTest.h"
#include "VYRICfdChoice.h"
#include "VYRICfdChoiceMgr.h"
#include "VYRStandaloneCatalog.h"

namespace
{
class ApplyTest : public SampleTest
{
};

INSTANTIATE_TEST_SUITE_P(Sample, ApplyTest, testing::ValuesIn(SampleCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_P(ApplyTest, EveryManagedType_HasItsManager)
{
    const VYRStandalone::Model model = Load();
    std::vector<std::string> managers = RegisterSampleManagers();
    std::sort(managers.begin(), managers.end());
    std::vector<std::string> managed = VYRStandalone::ManagedTypes();
    std::sort(managed.begin(), managed.end());
    EXPECT_EQ(managed, managers);
    for (const std::string& type : VYRStandalone::ManagedTypes())
        for (const std::string& path : PathsOf(model, type.c_str()))
            EXPECT_TRUE(VYRICfdChoiceMgr_var(ObjectAt(model, path)) != NULL_var) << path;
}

TEST_P(ApplyTest, TransitionModels_AreNarrowedToThoseOfTheTurbulenceModel)
{
    const VYRStandalone::Model model = LoadAndApply();
    const ORXISpecObject_var transition = At(model.Find("Solver.1"), "turbulence/transition");
    std::vector<ORXUnicodeString> declared;
    ORXUnicodeString declaredDefault;
    EXPECT_EQ(VYRICfdChoiceMgr_var(transition)->GetAllChoices(declared, declaredDefault), S_OK);
    EXPECT_EQ(declared, (std::vector<ORXUnicodeString>{"NONE", "LM", "BC"}));
    EXPECT_EQ(declaredDefault, ORXUnicodeString("NONE"));

    const std::string turbulence = ValueOf(At(model.Find("Solver.1"), "turbulence/model"), "value");
    std::vector<ORXUnicodeString> offered;
    EXPECT_EQ(VYRICfdChoice_var(transition)->GetListOfChoices(offered), S_OK);
    EXPECT_EQ(offered, (std::vector<ORXUnicodeString>{"NONE", turbulence == "SST" ? "LM" : "BC"})) << turbulence;
}

TEST_P(ApplyTest, ChoicesWithoutDataInTheFile_GetItByTheApplication)
{
    VYRStandalone::Model model = Load();
    const std::vector<std::string> before = PathsOf(model, "VYRCfdValues");
    Apply(model);
    const std::vector<std::string> after = PathsOf(model, "VYRCfdValues");
    for (const char* choice : {"Solver.1/fluid/viscosity", "Solver.1/turbulence/model"})
    {
        const std::string data = std::string(choice) + "/Data";
        EXPECT_EQ(std::count(before.begin(), before.end(), data), 0) << data;
        EXPECT_EQ(std::count(after.begin(), after.end(), data), 1) << data;
    }
}

TEST_P(ApplyTest, SecondApplication_ChangesNothing)
{
    VYRStandalone::Model model = LoadAndApply();
    const std::vector<std::string> once = LinesOf(model);
    Apply(model);
    EXPECT_EQ(DifferencesOf(once, LinesOf(model), ""), std::vector<std::string>{});
}

TEST_P(ApplyTest, SavedAndOpened_TheModelIsTheSame)
{
    VYRStandalone::Model model = LoadAndApply();
    Apply(model);
    VYRStandalone::Model opened = Reopened(model);
    EXPECT_EQ(opened.Text(), model.Text());

    // The records take the place of the defaults that lived in memory.
    Apply(opened);
    EXPECT_EQ(DifferencesOf(LinesOf(model), LinesOf(opened), ""), std::vector<std::string>{});
}

TEST_P(ApplyTest, TheApplication_MakesOfTheModelWhatWasRead)
{
    VYRStandalone::Model model = Load();
    const std::vector<std::string> before = LinesOf(model);
    Apply(model);
    SampleGoldens goldens(std::string("model-") + GetParam().name);
    for (const std::string& line : DifferencesOf(before, LinesOf(model), "Solver.1"))
        goldens.TextOfSetting("") += line + '\n';
    goldens.Compare();
}
} // namespace
