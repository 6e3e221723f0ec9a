#ifndef ErrorLog_H
#define ErrorLog_H

/**
 * @file
 * What the error service keeps for one thread.
 */

#include <vector>

#include "VYRStandaloneErrors.h"

struct ErrorLog
{
    std::vector<VYRStandalone::Report> reports;
    unsigned char status = 0;

    /// That of this thread.
    static ErrorLog& Current();
};

#endif
