#include "Subscribers.h"

namespace VYRStandalone
{
void Subscribers::Add(const std::shared_ptr<Subscription::Callback>& iCallback)
{
    std::erase_if(m_callbacks, [](const auto& iEnded) { return iEnded.expired(); });
    m_callbacks.push_back(iCallback);
}
} // namespace VYRStandalone
