#ifndef SampleTest_H
#define SampleTest_H

/**
 * @file
 * The sample installation as the object of tests.
 */

#include <ostream>
#include <string>

#include "ModuleTest.h"

/// A model of the sample, and the configuration that is meant for its solver; both bear one name.
struct SampleCase
{
    const char* name;
};

void PrintTo(const SampleCase& iCase, std::ostream* ioStream);

/// With the sample as the installation of the process, its catalogs declared, and a manager for each Choice that is to
/// have one.
class SampleInstallationTest : public ModuleTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Applies a configuration and expects success, and no reports.
    static void Configure(const ORXISpecObject_var& iObject, const std::string& iConfiguration);

    /// The model as it is after it has been closed and opened, which is expected to be as before.
    static VYRStandalone::Model Reopened(const VYRStandalone::Model& iModel);
};

/// One of the models of the sample.
class SampleTest : public SampleInstallationTest, public testing::WithParamInterface<SampleCase>
{
protected:
    /// The model of the case, as its file holds it.
    static VYRStandalone::Model Load();

    /// Applies the configuration of the case to the solver.
    static void Apply(VYRStandalone::Model& ioModel);

    static VYRStandalone::Model LoadAndApply();
};

const SampleCase SampleCases[] = {{"externalFlow"}, {"internalFlow"}};

#endif
