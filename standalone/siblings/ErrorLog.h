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

    /// That of this thread.
    static ErrorLog& Current();

    /// The status byte of this thread. Apart from the reports, and of the cheapest model, since every typed read and
    /// write of a cursor begins with it.
    [[gnu::tls_model("initial-exec")]] static constinit thread_local unsigned char s_status;
};

#endif
