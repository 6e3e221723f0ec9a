#include "ErrorLog.h"

#include <utility>

#include "PerThread.h"

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
    return ErrorLog::Current().status;
}

void SetErrorStatus(unsigned char iStatus)
{
    ErrorLog::Current().status = iStatus;
}
} // namespace VYRStandalone
