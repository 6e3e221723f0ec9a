/**
 * @file
 * Notifications from an object to those who have subscribed to it.
 */

#include <memory>
#include <optional>
#include <utility>

#include "ContractTest.h"
#include "ORXNotification.h"
#include "VYRCfdAttributeNotification.h"

namespace
{
using HostUnderTest::Subscription;
using Lines = std::vector<std::string>;

class Subscriptions : public ContractTest
{
protected:
    Subscriptions() : m_object(Make("ContractPlain", "P")) {}

    /// A callback that notes that it was told.
    Subscription::Callback Note(const char* iName)
    {
        return [this, iName](ORXNotification&) { m_told.emplace_back(iName); };
    }

    /// Sends a notification as a publisher does: what it makes, it releases.
    static void Dispatch(ORXBaseUnknown* iPublisher)
    {
        ORXNotification* const notification = new VYRCfdAttributeNotification;
        DispatchCallbacks(iPublisher, notification);
        notification->Release();
    }

    Lines Told() { return std::exchange(m_told, {}); }

    ORXISpecObject_var m_object;
    Lines m_told;
};

TEST_F(Subscriptions, AreToldInTheOrderOfSubscription)
{
    const Subscription first(m_object, Note("first"));
    const Subscription second(m_object, Note("second"));
    const Subscription third(m_object, Note("third"));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first", "second", "third"}));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first", "second", "third"})) << "a subscription lasts";
}

TEST_F(Subscriptions, OfTheSameCallback_AreTwo)
{
    const Subscription::Callback note = Note("told");
    const Subscription first(m_object, note);
    const Subscription second(m_object, note);
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"told", "told"}));
}

TEST_F(Subscriptions, OfOtherObjects_AreNotTold)
{
    const ORXISpecObject_var other = Make("ContractPlain", "Q");
    const Subscription mine(m_object, Note("P"));
    const Subscription theirs(other, Note("Q"));
    const Subscription part(ObjectOf(m_object, "part"), Note("P/part"));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"P"}));
    Dispatch(ObjectOf(m_object, "part"));
    EXPECT_EQ(Told(), (Lines{"P/part"})) << "an owner is not told of its components";
}

TEST_F(Subscriptions, BelongToTheObject_WhateverFacetSubscribesOrPublishes)
{
    const Subscription byAccess(ORXISpecAttrAccess_var(m_object), Note("access"));
    const Subscription byRoot(ORXBaseUnknown_var::Share(m_object->GetImpl(0)), Note("root"));
    Dispatch(m_object->GetImpl(0));
    EXPECT_EQ(Told(), (Lines{"access", "root"}));
    Dispatch(ORXISpecAttrAccess_var(m_object));
    EXPECT_EQ(Told(), (Lines{"access", "root"}));
}

TEST_F(Subscriptions, ReceiveTheNotificationItself)
{
    ORXNotification* received = nullptr;
    const Subscription subscription(m_object, [&](ORXNotification& ioNotification) { received = &ioNotification; });
    ORXNotification* const notification = new VYRCfdAttributeNotification;
    DispatchCallbacks(m_object, notification);
    EXPECT_EQ(received, notification);
    EXPECT_EQ(notification->Release(), 0U) << "nobody has kept it";
}

TEST_F(Subscriptions, MadeWhileOthersAreTold_AreToldOfTheNextNotification)
{
    std::optional<Subscription> late;
    const Subscription first(m_object, [&](ORXNotification&) {
        m_told.emplace_back("first");
        if (!late)
            late.emplace(m_object, Note("late"));
    });
    const Subscription second(m_object, Note("second"));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first", "second"}));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first", "second", "late"}));
}

TEST_F(Subscriptions, EndedWhileOthersAreTold_AreNotToldAnyMore)
{
    std::optional<Subscription> second;
    const Subscription first(m_object, [&](ORXNotification&) {
        m_told.emplace_back("first");
        second.reset();
    });
    second.emplace(m_object, Note("second"));
    const Subscription third(m_object, Note("third"));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first", "third"}));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first", "third"}));
}

TEST_F(Subscriptions, MayEndThemselvesFromTheirCallback)
{
    std::optional<Subscription> own;
    const std::shared_ptr<int> held = std::make_shared<int>(7);
    own.emplace(m_object, [&own, this, held](ORXNotification&) {
        own.reset();
        // What the callback holds must outlive the call in which it ends.
        m_told.push_back("own " + std::to_string(*held));
    });
    Dispatch(m_object);
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"own 7"}));
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(Subscriptions, Nested_AreToldInsideTheOuterNotification)
{
    int depth = 0;
    const Subscription first(m_object, [&](ORXNotification&) {
        m_told.push_back("first at " + std::to_string(depth));
        if (depth > 0)
            return;
        ++depth;
        Dispatch(m_object);
        --depth;
    });
    const Subscription second(m_object,
                              [&](ORXNotification&) { m_told.push_back("second at " + std::to_string(depth)); });
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first at 0", "first at 1", "second at 1", "second at 0"}));
}

TEST_F(Subscriptions, OfNoNotification_AreNotTold)
{
    const Subscription subscription(m_object, Note("told"));
    DispatchCallbacks(m_object, nullptr);
    DispatchCallbacks(nullptr, nullptr);
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(Subscriptions, WritesOfAttributes_DispatchNothing)
{
    const Subscription subscription(m_object, Note("told"));
    ParmOf(m_object, "ratio")->Valuate(1.0);
    EXPECT_EQ(Told(), Lines{}) << "who publishes decides when";
}

TEST_F(Subscriptions, DoNotHoldTheirObject)
{
    const int before = HostUnderTest::LiveComponents();
    std::optional<Subscription> subscription;
    {
        const HostUnderTest::Model model;
        const ORXISpecObject_var object = MakeIn(model, "ContractPlain", "Q");
        const unsigned int references = CountOf(object);
        subscription.emplace(object, Note("told"));
        EXPECT_EQ(CountOf(object), references);
    }
    EXPECT_EQ(HostUnderTest::LiveComponents(), before) << "the object has died, and its subscription lives";
    subscription.reset();
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(Subscriptions, OfAnObjectThatDiesWhileTheyAreTold_AreToldOnAndFindItAlive)
{
    const int before = HostUnderTest::LiveComponents();
    {
        HostUnderTest::Model model;
        ORXBaseUnknown* const root = MakeIn(model, "ContractPlain", "Q")->GetImpl(0);
        const ORXBaseUnknown_var borrowed = ORXBaseUnknown_var::Share(root);
        const Subscription first(borrowed, [&](ORXNotification&) {
            m_told.emplace_back("first");
            model.Close();
        });
        const Subscription second(borrowed, [&](ORXNotification&) {
            m_told.push_back("second, of " + Narrow(ORXISpecObject_var::Cast(root)->GetName()));
        });
        Dispatch(root);
        EXPECT_EQ(Told(), (Lines{"first", "second, of Q"}));
    }
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
}

TEST_F(Subscriptions, OfAnObjectThatNobodyHolds_MayLetItGoAndAreToldOn)
{
    HostUnderTest::Model model;
    const int before = HostUnderTest::LiveComponents();
    ORXBaseUnknown* const root = MakeIn(model, "ContractPlain", "Q")->GetImpl(0);
    const Subscription first(ORXBaseUnknown_var::Share(root), [&](ORXNotification&) {
        m_told.emplace_back("first");
        model.Close();
    });
    const Subscription second(ORXBaseUnknown_var::Share(root), Note("second"));
    Dispatch(root);
    EXPECT_EQ(Told(), (Lines{"first", "second"}));
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
}
} // namespace
