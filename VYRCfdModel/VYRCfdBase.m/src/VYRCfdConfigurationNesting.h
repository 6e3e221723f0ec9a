#ifndef VYRCfdConfigurationNesting_H
#define VYRCfdConfigurationNesting_H

/**
 * @file
 * Depth of configurations within configurations.
 */

/**
 * Counts the applications of the outermost run on this thread, and those of them that are open.
 *
 * Configurations that lead back to themselves would nest until the stack ends, and configurations that apply each other
 * twice would never come to an end. At either limit the run is stopped: one error tells of it, and from then on no
 * application within the outermost one is made. Without the latter, a cycle with two branches would come back to the
 * limit of depth some 2 to the 512th times.
 */
class VYRCfdConfigurationNesting
{
public:
    /// Applications that may be open at once.
    static constexpr int Limit = 512;
    /// Applications of one outermost run.
    static constexpr int MostApplications = 100000;

    VYRCfdConfigurationNesting() noexcept;
    ~VYRCfdConfigurationNesting();
    VYRCfdConfigurationNesting(const VYRCfdConfigurationNesting&) = delete;
    VYRCfdConfigurationNesting& operator=(const VYRCfdConfigurationNesting&) = delete;

    /// Whether an application of this run has met the limit before.
    bool IsStopped() const noexcept;

    /// Stops the run if this application exceeds the limit of depth; true if it does.
    bool StopIfTooDeep() const noexcept;

    /// Stops the run if there have been more applications than one run may make; true if there have.
    bool StopIfTooMany() const noexcept;
};

#endif
