#ifndef OwnComponent_H
#define OwnComponent_H

#include <functional>

#include "ORXBaseUnknown.h"

/// A component of its own, which overrides nothing of its base, and tells of its end.
class OwnComponent : public ORXBaseUnknown
{
public:
    explicit OwnComponent(int& ioAlive) : m_alive(ioAlive) { ++m_alive; }
    ~OwnComponent() override
    {
        if (onEnd)
            onEnd(*this);
        --m_alive;
    }

    std::function<void(OwnComponent& iSelf)> onEnd;

private:
    int& m_alive;
};

#endif
