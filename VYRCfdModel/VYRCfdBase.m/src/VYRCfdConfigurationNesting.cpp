#include "VYRCfdConfigurationNesting.h"

namespace
{
// Per thread, since different models may be configured on different threads.
thread_local int openApplications = 0;
thread_local int allApplications = 0;
thread_local bool isStopped = false;
} // namespace

VYRCfdConfigurationNesting::VYRCfdConfigurationNesting() noexcept
{
    ++openApplications;
    ++allApplications;
}

VYRCfdConfigurationNesting::~VYRCfdConfigurationNesting()
{
    if (--openApplications != 0)
        return;
    allApplications = 0;
    isStopped = false;
}

bool VYRCfdConfigurationNesting::IsStopped() const noexcept
{
    return isStopped;
}

bool VYRCfdConfigurationNesting::StopIfTooDeep() const noexcept
{
    isStopped = openApplications > Limit;
    return isStopped;
}

bool VYRCfdConfigurationNesting::StopIfTooMany() const noexcept
{
    isStopped = allApplications > MostApplications;
    return isStopped;
}
