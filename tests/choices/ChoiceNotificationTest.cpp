/**
 * @file
 * What a Choice sends when it has changed: the object that is sent, to whom, and when.
 */

#include <ostream>

#include "ChoiceTest.h"
#include "VYRCfdAttributeNotification.h"

namespace
{
class ChoiceNotificationTest : public ChoiceTest
{
};

TEST_F(ChoiceNotificationTest, Object_IsAnAttributeNotification)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    int isAttributeNotification = 0;
    bool isOfTheClass = false;
    const VYRStandalone::Subscription subscription(choice, [&](ORXNotification& ioNotification) {
        isAttributeNotification = ioNotification.IsAKindOf("VYRCfdAttributeNotification");
        isOfTheClass = dynamic_cast<VYRCfdAttributeNotification*>(&ioNotification) != nullptr;
        EXPECT_EQ(ioNotification.IsAKindOf("VYRICfdChoice"), 0);
    });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_NE(isAttributeNotification, 0);
    EXPECT_TRUE(isOfTheClass);
}

TEST_F(ChoiceNotificationTest, Object_IsReleasedWhenEverybodyHasBeenTold)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    const int before = VYRStandalone::LiveComponents();
    unsigned int references = 0;
    const VYRStandalone::Subscription subscription(
        choice, [&](ORXNotification& ioNotification) { references = VYRStandalone::ReferenceCount(&ioNotification); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(references, 1U) << "the maker's own";
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(ChoiceNotificationTest, Object_LivesAsLongAsAReceiverHoldsIt)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    ASSERT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    const int before = VYRStandalone::LiveComponents();
    ORXBaseUnknown_var kept;
    {
        const VYRStandalone::Subscription subscription(
            choice, [&](ORXNotification& ioNotification) { kept = ORXBaseUnknown_var::Share(&ioNotification); });
        EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    }
    ASSERT_FALSE(!kept);
    EXPECT_EQ(VYRStandalone::ReferenceCount(kept), 1U);
    EXPECT_NE(kept->IsAKindOf("VYRCfdAttributeNotification"), 0);
    EXPECT_EQ(VYRStandalone::LiveComponents(), before + 1);
    kept = NULL_var;
    EXPECT_EQ(VYRStandalone::LiveComponents(), before);
}

TEST_F(ChoiceNotificationTest, EachChange_SendsAnObjectOfItsOwn)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {}, "alpha", "", ""});
    std::vector<ORXBaseUnknown_var> kept;
    const VYRStandalone::Subscription subscription(
        choice, [&](ORXNotification& ioNotification) { kept.push_back(ORXBaseUnknown_var::Share(&ioNotification)); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_FALSE(kept[0] == kept[1]);
}

TEST_F(ChoiceNotificationTest, Receiver_FindsTheChoiceAsItIsNow)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    std::string found;
    const VYRStandalone::Subscription subscription(
        choice, [&](ORXNotification&) { found = ValueOf(choice, "value") + " " + DataTypeOf(choice); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(found, "beta TypeBeta");
}

TEST_F(ChoiceNotificationTest, AllSubscribers_GetOneObjectInTheirOrder)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    std::vector<std::pair<int, ORXNotification*>> told;
    const VYRStandalone::Subscription first(choice, [&](ORXNotification& io) { told.emplace_back(1, &io); });
    const VYRStandalone::Subscription second(choice, [&](ORXNotification& io) { told.emplace_back(2, &io); });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].first, 1);
    EXPECT_EQ(told[1].first, 2);
    EXPECT_EQ(told[0].second, told[1].second);
}

TEST_F(ChoiceNotificationTest, OnlySubscribersOfTheChoice_AreTold)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    const ORXISpecObject_var choice = At(owner, "model");
    ASSERT_EQ(ChoiceOf(choice)->Update(), S_OK);
    const NotificationCounter ofChoice(choice);
    const NotificationCounter ofOwner(owner);
    const NotificationCounter ofData(DataOf(choice));
    const NotificationCounter ofOther(At(owner, "kind"));
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(ofChoice.Count(), 1);
    EXPECT_EQ(ofOwner.Count() + ofData.Count() + ofOther.Count(), 0);
}

struct SendingCase
{
    const char* name;
    bool isValueWritten;
    bool isDataTaken;
    int notifications;
};

void PrintTo(const SendingCase& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

const SendingCase sendingCases[] = {
    {"Nothing", false, false, 0},
    {"Value", true, false, 1},
    {"Data", false, true, 1},
    {"ValueAndData", true, true, 1},
};

class ChoiceSendingTest : public ChoiceTest, public testing::WithParamInterface<SendingCase>
{
};

TEST_P(ChoiceSendingTest, Update_SendsWhenValueOrDataHaveChanged)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    ASSERT_EQ(ConfigurableOf(choice)->StartConfiguration(), S_OK);
    if (GetParam().isValueWritten)
    {
        ASSERT_EQ(ChoiceOf(choice)->SetChoice("alpha"), S_OK);
    }
    if (GetParam().isDataTaken)
    {
        ASSERT_EQ(WriteObject(choice, "Data", NULL_var), S_OK);
    }
    const NotificationCounter notifications(choice);
    ChoiceRecorder recorder;
    EXPECT_EQ(ConfigurableOf(choice)->CompleteConfiguration(), S_OK);
    EXPECT_EQ(notifications.Count(), GetParam().notifications);
    EXPECT_EQ(Only(recorder.Take(), {"complete"}),
              (Lines{std::string("complete ") + (GetParam().isValueWritten ? "true " : "false ") +
                     (GetParam().isDataTaken ? "true" : "false")}));
}

INSTANTIATE_TEST_SUITE_P(Changes, ChoiceSendingTest, testing::ValuesIn(sendingCases),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(ChoiceNotificationTest, NewDefaultOfAChoiceThatIsNotSet_SendsOne)
{
    const ORXISpecObject_var choice = MakeUpdated({{"alpha", "beta"}, {"TypeAlpha", "TypeBeta"}, "alpha", "", ""});
    const NotificationCounter notifications(choice);
    EXPECT_EQ(TestChoice::Of(choice).Update("beta"), S_OK);
    EXPECT_EQ(notifications.Count(), 1);
}

TEST_F(ChoiceNotificationTest, ReceiverThatWritesTheValue_IsToldOnceMoreInside)
{
    const ORXISpecObject_var choice = MakeUpdated(ThreeChoices());
    Lines told;
    const VYRStandalone::Subscription subscription(choice, [&](ORXNotification&) {
        told.push_back(ValueOf(choice, "value"));
        if (told.size() == 1)
            ChoiceOf(choice)->SetChoice("gamma");
    });
    EXPECT_EQ(ChoiceOf(choice)->SetChoice("beta"), S_OK);
    EXPECT_EQ(told, (Lines{"beta", "gamma"}));
    EXPECT_EQ(DataTypeOf(choice), "TypeGamma");
}
} // namespace
