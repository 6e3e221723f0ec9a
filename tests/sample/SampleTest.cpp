#include "SampleTest.h"

#include "SampleManagers.h"
#include "VYRCfdConfigurator.h"
#include "VYRStandaloneServices.h"

void PrintTo(const SampleCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

void SampleTest::SetUp()
{
    ModuleTest::SetUp();
    VYRStandalone::SetOfficialVariable("ORXInstallPath", VYR_SAMPLES_DIR);
    RegisterSampleManagers();
}

void SampleTest::TearDown()
{
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
    ModuleTest::TearDown();
}

VYRStandalone::Model SampleTest::Load()
{
    return Load(std::string(VYR_SAMPLES_DIR) + "/models/" + GetParam().name + ".model.json");
}

VYRStandalone::Model SampleTest::Load(const std::string& iFile)
{
    return VYRStandalone::Model::Load(iFile, {std::string(VYR_SAMPLES_DIR) + "/catalogs"});
}

void SampleTest::Apply(VYRStandalone::Model& ioModel)
{
    EXPECT_EQ(VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(ioModel.Find("Solver.1"), GetParam().name),
              S_OK);
    EXPECT_EQ(Reported(), Records{});
}

VYRStandalone::Model SampleTest::LoadAndApply()
{
    VYRStandalone::Model model = Load();
    Apply(model);
    return model;
}
