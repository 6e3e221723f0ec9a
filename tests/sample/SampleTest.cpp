#include "SampleTest.h"

#include "ModelLines.h"
#include "SampleManagers.h"
#include "SamplePlaces.h"
#include "VYRCfdConfigurator.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneServices.h"

namespace
{
const std::string Catalogs = std::string(VYR_SAMPLES_DIR) + "/catalogs";
} // namespace

void PrintTo(const SampleCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

void SampleInstallationTest::SetUp()
{
    ModuleTest::SetUp();
    VYRStandalone::SetOfficialVariable("ORXInstallPath", VYR_SAMPLES_DIR);
    for (const char* catalog : SampleCatalogs)
        VYRStandalone::LoadCatalog(Catalogs + "/" + catalog + ".catalog.json");
    RegisterSampleManagers();
}

void SampleInstallationTest::TearDown()
{
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
    ModuleTest::TearDown();
}

void SampleInstallationTest::Configure(const ORXISpecObject_var& iObject, const std::string& iConfiguration)
{
    EXPECT_EQ(VYRCfdConfigurator::GetConfigurator()->ApplyConfiguration(iObject, iConfiguration.c_str()), S_OK)
        << iConfiguration;
    EXPECT_EQ(Reported(), Records{}) << iConfiguration;
}

VYRStandalone::Model SampleInstallationTest::Reopened(const VYRStandalone::Model& iModel)
{
    VYRStandalone::Model opened = VYRStandalone::Model::Parse(iModel.Text(), "reopened", {Catalogs});
    EXPECT_EQ(DifferencesOf(LinesOf(iModel), LinesOf(opened), ""), std::vector<std::string>{});
    EXPECT_EQ(LinesOf(opened).size(), LinesOf(iModel).size());
    return opened;
}

VYRStandalone::Model SampleTest::Load()
{
    return VYRStandalone::Model::Load(std::string(VYR_SAMPLES_DIR) + "/models/" + GetParam().name + ".model.json",
                                      {Catalogs});
}

void SampleTest::Apply(VYRStandalone::Model& ioModel)
{
    Configure(ioModel.Find("Solver.1"), GetParam().name);
}

VYRStandalone::Model SampleTest::LoadAndApply()
{
    VYRStandalone::Model model = Load();
    Apply(model);
    return model;
}
