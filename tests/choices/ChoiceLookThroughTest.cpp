/**
 * @file
 * The name that equals a Choice's current value, which leads to its data object.
 */

#include "ChoiceTest.h"

namespace
{
class ChoiceLookThroughTest : public ChoiceTest
{
};

TEST_F(ChoiceLookThroughTest, CurrentValue_LeadsToTheData)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const VYRCfdObjectAccess data = Cursor(choice)["alpha"];
    ASSERT_FALSE(data.IsNull());
    EXPECT_TRUE(ORXISpecObject_var(data.Self()) == DataOf(choice));
    int count = 0;
    EXPECT_EQ(Cursor(choice).GetByPath("alpha/count").GetInteger(count), S_OK);
    EXPECT_EQ(count, 2);
}

TEST_F(ChoiceLookThroughTest, OtherChoices_LeadNowhere)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    for (const char* name : {"beta", "gamma", "Alpha", "alph", "TypeAlpha", ""})
        EXPECT_EQ(Cursor(choice)[ORXUnicodeString(name)].GetError(),
                  ORXUnicodeString("No attribute ") + ORXUnicodeString(name))
            << name;
}

TEST_F(ChoiceLookThroughTest, ChangeOfTheValue_IsFollowed)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    const VYRCfdObjectAccess cursor = Cursor(choice);
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(cursor["alpha"].GetError(), ORXUnicodeString("No attribute alpha"));
    EXPECT_EQ(cursor["beta"].GetType(), ORXUnicodeString("TypeBeta"));
    int count = 0;
    EXPECT_EQ(cursor.GetByPath("beta/count").GetInteger(count), S_OK);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(cursor["beta"]["count"].SetInteger(30), S_OK);
    EXPECT_EQ(ValueOf(DataOf(choice), "count"), "30");
}

TEST_F(ChoiceLookThroughTest, ValueOfAnOwnersChoice_IsASegmentOfAPath)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    ASSERT_EQ(ChoiceOf(At(owner, "model"))->Update(), S_OK);
    ORXUnicodeString label;
    EXPECT_EQ(Cursor(owner).GetByPath("model/beta/label").GetString(label), S_OK);
    EXPECT_EQ(label, ORXUnicodeString("b"));
    EXPECT_EQ(Cursor(owner).GetByPath("model/alpha/label").GetError(), ORXUnicodeString("No attribute alpha"));
}

TEST_F(ChoiceLookThroughTest, DataAndTheValue_LeadToOneObject)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    EXPECT_TRUE(Cursor(choice)["alpha"] == Cursor(choice)["Data"]);
}

TEST_F(ChoiceLookThroughTest, ValueWithoutData_IsAnEmptyAttribute)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    EXPECT_EQ(Cursor(choice)["alpha"].GetError(), ORXUnicodeString("Null initialization c"));
}

TEST_F(ChoiceLookThroughTest, ValueThatIsTheNameOfAnAttribute_IsTheAttribute)
{
    const ORXISpecObject_var choice =
        MakeUpdated({{"display", "alpha"}, {"TypeAlpha", "TypeBeta"}, "display", "Shown", ""});
    ASSERT_EQ(DataTypeOf(choice), "TypeAlpha");
    ORXUnicodeString text;
    EXPECT_EQ(Cursor(choice)["display"].GetString(text), S_OK);
    EXPECT_EQ(text, ORXUnicodeString("Shown"));
}

TEST_F(ChoiceLookThroughTest, ValueOutsideTheChoices_LeadsToTheDataThatIsThere)
{
    // The cursor asks the value alone.
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    TestChoice::Hooks().fix = [](TestChoice&) { return false; };
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("omega"), S_OK);
    EXPECT_EQ(Cursor(choice)["omega"].GetType(), ORXUnicodeString("TypeAlpha"));
}

TEST_F(ChoiceLookThroughTest, ValueOnAnObjectThatIsNoChoice_MeansNothing)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    ASSERT_EQ(ChoiceOf(At(owner, "model"))->Update(), S_OK);
    EXPECT_EQ(Cursor(owner)["beta"].GetError(), ORXUnicodeString("No attribute beta"));
}
} // namespace
