/**
 * @file
 * Subscriptions as objects: moved, assigned to, and made on what publishes nothing.
 */

#include <utility>

#include "HostTypes.h"
#include "ORXNotification.h"
#include "VYRCfdAttributeNotification.h"

namespace
{
using VYRStandalone::Subscription;
using Lines = std::vector<std::string>;

class Subscriptions : public HostTest
{
protected:
    Subscriptions() : m_object(Make("HostPlain", "P")) {}

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

TEST_F(Subscriptions, Moved_StayInTheirPlace)
{
    Subscription first(m_object, Note("first"));
    const Subscription second(m_object, Note("second"));
    const Subscription moved(std::move(first));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"first", "second"}));
}

TEST_F(Subscriptions, AssignedTo_EndWhatTheyWere)
{
    Subscription subscription(m_object, Note("old"));
    const Subscription second(m_object, Note("second"));
    subscription = Subscription(m_object, Note("new"));
    Dispatch(m_object);
    EXPECT_EQ(Told(), (Lines{"second", "new"}));
}

TEST_F(Subscriptions, OnNothingOrOnWhatIsNoFeatureObject_ReceiveNothing)
{
    const ORXBaseUnknown_var notification = ORXBaseUnknown_var::Adopt(new VYRCfdAttributeNotification);
    const Subscription none(NULL_var, Note("none"));
    const Subscription container(m_model.Container(), Note("container"));
    const Subscription component(notification, Note("component"));
    Dispatch(nullptr);
    Dispatch(m_model.Container());
    Dispatch(notification);
    EXPECT_EQ(Told(), Lines{});
}
} // namespace
