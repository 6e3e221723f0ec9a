#include "ChoiceLeakTest.h"

void ChoiceLeakTest::SetUp()
{
    ChoiceTest::SetUp();
    m_alive = VYRStandalone::LiveComponents();
}

void ChoiceLeakTest::TearDown()
{
    TestChoice::Hooks() = {};
    m_model.Close();
    EXPECT_EQ(VYRStandalone::LiveComponents(), m_alive) << testing::PrintToString(VYRStandalone::LiveComponentNames());
    ChoiceTest::TearDown();
}
