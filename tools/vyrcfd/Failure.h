#ifndef Failure_H
#define Failure_H

/**
 * @file
 * How a command gives up.
 */

#include <stdexcept>

namespace Tool
{
/// The job failed. `what()` is what standard error gets: one line, and a line for each report of the error service.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Standard output takes no more, so that there is no point in going on.
class OutputFailure : public Failure
{
public:
    using Failure::Failure;
};

/// The pipe that standard output is has lost its reader, who has seen enough.
class BrokenPipe : public OutputFailure
{
public:
    using OutputFailure::OutputFailure;
};
} // namespace Tool

#endif
