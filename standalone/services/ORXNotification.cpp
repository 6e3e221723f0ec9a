#include "ORXNotification.h"

#include "FeatureObject.h"
#include "Instruments.h"
#include "Subscribers.h"

using namespace VYRStandalone;

ORXNotification::ORXNotification() = default;

ORXNotification::~ORXNotification() = default;

void DispatchCallbacks(ORXBaseUnknown* iPublisher, ORXNotification* iNotification)
{
    FeatureObject* const object = FeatureObject::Of(iPublisher);
    if (object == nullptr || iNotification == nullptr)
        return;
    if (Instruments::IsRecording())
        Instruments::Record("dispatch " + object->Path());
    const Subscribers* const subscribers = object->GetSubscribers();
    if (subscribers == nullptr)
        return;
    for (const auto& subscriber : subscribers->Snapshot())
        // Held while it runs, since it may end its own subscription.
        if (const auto callback = subscriber.lock(); callback != nullptr && *callback)
            (*callback)(*iNotification);
}
