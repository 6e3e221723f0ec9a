#ifndef ChoiceLeakTest_H
#define ChoiceLeakTest_H

/**
 * @file
 * Choices under hands that do what they should not.
 */

#include "ChoiceTest.h"

/// Holds every test to leaving nothing alive but what was there before it. The hooks are taken away and the model is
/// closed before that is looked at.
class ChoiceLeakTest : public ChoiceTest
{
protected:
    void SetUp() override;
    void TearDown() override;

private:
    int m_alive = 0;
};

/// What tests throw through the module. Nothing of the module or the host throws it.
struct Thrown
{
};

#endif
