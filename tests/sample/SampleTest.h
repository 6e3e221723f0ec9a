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

/// With the sample as the installation of the process, and a manager for each Choice that is to have one.
class SampleTest : public ModuleTest, public testing::WithParamInterface<SampleCase>
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// The model of the case, as its file holds it.
    static VYRStandalone::Model Load();

    /// The model of a file, with the catalogs of the sample.
    static VYRStandalone::Model Load(const std::string& iFile);

    /// Applies the configuration of the case to the solver.
    static void Apply(VYRStandalone::Model& ioModel);

    static VYRStandalone::Model LoadAndApply();
};

const SampleCase SampleCases[] = {{"externalFlow"}, {"internalFlow"}};

#endif
