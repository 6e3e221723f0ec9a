#include "ErrorLog.h"

#include <utility>

#include "PerThread.h"

constinit thread_local unsigned char ErrorLog::s_status = 0;

ErrorLog& ErrorLog::Current()
{
    return PerThread<ErrorLog>::Get();
}

namespace VYRStandalone
{
std::vector<Report> TakeReports()
{
    return std::exchange(ErrorLog::Current().reports, {});
}

const std::vector<Report>& Reports()
{
    return ErrorLog::Current().reports;
}

unsigned char ErrorStatus()
{
    return ErrorLog::s_status;
}

void SetErrorStatus(unsigned char iStatus)
{
    ErrorLog::s_status = iStatus;
}
} // namespace VYRStandalone
