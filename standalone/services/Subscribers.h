#ifndef Subscribers_H
#define Subscribers_H

#include <memory>
#include <vector>

#include "VYRStandaloneServices.h"

namespace VYRStandalone
{
/// Who receives the notifications of one object, in the order of subscription. Each subscription owns its callback.
class Subscribers
{
public:
    void Add(const std::shared_ptr<Subscription::Callback>& iCallback);

    /// Those that are still subscribed; each is asked again right before it is told.
    std::vector<std::weak_ptr<Subscription::Callback>> Snapshot() const { return m_callbacks; }

private:
    std::vector<std::weak_ptr<Subscription::Callback>> m_callbacks;
};
} // namespace VYRStandalone

#endif
