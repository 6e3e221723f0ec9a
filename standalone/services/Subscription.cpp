#include "FeatureObject.h"
#include "VYRStandaloneServices.h"

namespace VYRStandalone
{
Subscription::Subscription(const ORXBaseUnknown_var& iObject, Callback iCallback)
    : m_callback(std::make_shared<Callback>(std::move(iCallback)))
{
    FeatureObject* const object = FeatureObject::Of(iObject.Pointer());
    if (object != nullptr)
        object->AddSubscriber(m_callback);
}

Subscription::~Subscription() = default;

Subscription::Subscription(Subscription&&) noexcept = default;

Subscription& Subscription::operator=(Subscription&&) noexcept = default;
} // namespace VYRStandalone
