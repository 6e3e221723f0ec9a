#ifndef ORXNotification_H
#define ORXNotification_H

/**
 * @file
 * Notifications from an object to whoever has subscribed to it. Link-time seam.
 */

#include "ORXBaseUnknown.h"

/// What is sent. It counts itself and starts with one reference, which belongs to its maker; receivers tell its class
/// by `IsAKindOf`.
class ORXHostExport ORXNotification : public ORXBaseUnknown
{
public:
    ~ORXNotification() override;

protected:
    ORXNotification();
};

/**
 * Hands a notification to the subscribers of an object, in the order of subscription, on this thread and before it
 * returns. Who subscribes meanwhile is not told, who ends its subscription neither. Both arguments are borrowed for
 * the call; null does nothing.
 */
ORXHostExport void DispatchCallbacks(ORXBaseUnknown* iPublisher, ORXNotification* iNotification);

#endif
