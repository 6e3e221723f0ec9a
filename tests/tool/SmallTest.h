#ifndef SmallTest_H
#define SmallTest_H

/**
 * @file
 * Fixture of tests on a model that has one of everything.
 */

#include "ToolTest.h"

/// "small.model.json", "flow.model.json" with Choices, and their catalog in the working folder, and an installation
/// with its few configurations beside the sample's own.
class SmallTest : public ToolTest
{
protected:
    SmallTest()
    {
        AddSmallModel();
        Write(std::string(Configurations) + "conditionsConfig_Flow.json", ReadData("small.configurations.json"));
    }

    static constexpr char Small[] = "small.model.json";
    static constexpr char Flow[] = "flow.model.json";
};

#endif
