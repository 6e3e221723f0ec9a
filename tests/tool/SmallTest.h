#ifndef SmallTest_H
#define SmallTest_H

/**
 * @file
 * Fixture of tests on a model that has one of everything.
 */

#include "ToolTest.h"

/// "small.model.json" and its catalog in the working folder, and an installation with its few configurations beside the
/// sample's own.
class SmallTest : public ToolTest
{
protected:
    SmallTest()
    {
        AddSmallModel();
        Write(std::string(Configurations) + "conditionsConfig_Flow.json", ReadData("small.configurations.json"));
    }

    static constexpr char Small[] = "small.model.json";
};

#endif
