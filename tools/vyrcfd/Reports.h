#ifndef Reports_H
#define Reports_H

/**
 * @file
 * What the error service holds, as lines for standard error.
 */

#include <string>
#include <vector>

namespace Tool
{
/// Takes the reports, oldest first, one line each:
/// `failed call: Load(iName) in VYRCfdThing::Do, status 0x80004005`.
std::vector<std::string> TakeReportLines();
} // namespace Tool

#endif
