#ifndef VYRCfdConfigurationNesting_H
#define VYRCfdConfigurationNesting_H

/**
 * @file
 * Depth of configurations within configurations.
 */

/**
 * Counts the applications that are open on this thread, for as long as it lives.
 *
 * Configurations that lead back to themselves would nest until the stack ends. At the limit the run is stopped: one
 * error tells of it, and from then on no application within the outermost one goes deeper. Without the latter, a cycle
 * with two branches would come back to the limit some 2 to the 512th times.
 */
class VYRCfdConfigurationNesting
{
public:
    /// Applications that may be open at once.
    static constexpr int Limit = 512;

    VYRCfdConfigurationNesting() noexcept;
    ~VYRCfdConfigurationNesting();
    VYRCfdConfigurationNesting(const VYRCfdConfigurationNesting&) = delete;
    VYRCfdConfigurationNesting& operator=(const VYRCfdConfigurationNesting&) = delete;

    /// Whether an application of this run has met the limit before.
    bool IsStopped() const noexcept;

    /// Stops the run if this application exceeds the limit; true if it does.
    bool StopIfTooDeep() const noexcept;
};

#endif
