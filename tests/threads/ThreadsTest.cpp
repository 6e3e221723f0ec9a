/**
 * @file
 * Different models on different threads, once the configurations are loaded: what they share is only read.
 */

#include <latch>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "VYRCfdConfigurator.h"
#include "VYRCfdObjectAccess.h"
#include "VYRICfdChoice.h"
#include "VYRStandaloneHost.h"

namespace
{
const std::string Folder = VYR_SAMPLES_DIR;

VYRStandalone::Model Load(const std::string& iName)
{
    return VYRStandalone::Model::Load(Folder + "/models/" + iName + ".model.json", {Folder + "/catalogs"});
}

/// All Choices below an object, found by walking its attributes.
void CollectChoices(const ORXISpecObject_var& iObject, std::vector<VYRICfdChoice_var>& ioChoices)
{
    const VYRICfdChoice_var choice = iObject;
    if (!!choice)
        ioChoices.push_back(choice);
    const VYRCfdObjectAccess access{ORXBaseUnknown_var(iObject)};
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iObject))
    {
        if (attribute.type != tk_component)
            continue;
        const ORXISpecObject_var part = access[ORXUnicodeString(attribute.name.c_str())].Self();
        if (!!part)
            CollectChoices(part, ioChoices);
    }
}

/// Selects every choice of every Choice of an object in turn.
void SwitchChoices(const ORXISpecObject_var& iObject)
{
    std::vector<VYRICfdChoice_var> choices;
    CollectChoices(iObject, choices);
    for (const VYRICfdChoice_var& choice : choices)
    {
        std::vector<ORXUnicodeString> offered;
        choice->GetListOfChoices(offered);
        for (const ORXUnicodeString& one : offered)
            choice->SetChoice(one);
    }
}

/// What a user does with a model: applies its configuration, switches Choices, takes values away, asks, and saves.
std::string WorkOn(const std::string& iName)
{
    VYRStandalone::Model model = Load(iName);
    const ORXISpecObject_var solver = model.Find("Solver.1");
    VYRCfdConfigurator& configurator = *VYRCfdConfigurator::GetConfigurator();
    configurator.ApplyConfiguration(solver, iName.c_str());
    SwitchChoices(solver);
    configurator.ApplyConfiguration(solver, iName.c_str());
    std::string text = model.Text();
    // What is read back on this thread is what stands here, whatever the others do.
    const VYRStandalone::Model again = VYRStandalone::Model::Parse(text, iName, {Folder + "/catalogs"});
    return again.Text() == text ? text : "read back differently";
}

class Threads : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        VYRStandalone::SetOfficialVariable("ORXInstallPath", Folder);
        // Types and configurations are there before the threads begin.
        Load("internalFlow");
        VYRStandalone::Model model = Load("externalFlow");
        ASSERT_EQ(VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(model.Find("Solver.1"), "externalFlow"),
                  S_OK);
    }
    void TearDown() override { VYRStandalone::ResetOfficialVariable("ORXInstallPath"); }
};

TEST_P(Threads, ModelsOnThreadsOfTheirOwnComeOutAsOnOne)
{
    const std::string names[] = {"externalFlow", "internalFlow"};
    std::vector<std::string> texts(static_cast<std::size_t>(GetParam()));
    std::latch start(GetParam());
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < texts.size(); ++i)
            threads.emplace_back([&, i] {
                start.arrive_and_wait();
                for (int round = 0; round < 3; ++round)
                    texts[i] = WorkOn(names[i % 2]);
                EXPECT_TRUE(VYRStandalone::Reports().empty());
            });
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(texts[i], WorkOn(names[i % 2])) << names[i % 2];
}

INSTANTIATE_TEST_SUITE_P(Numbers, Threads, testing::Values(2, 8));
} // namespace
