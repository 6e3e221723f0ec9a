#ifndef Uninterrupted_H
#define Uninterrupted_H

/**
 * @file
 * Writing a file to its end.
 */

#include <csignal>
#include <string>

namespace Tool
{
/// For as long as it lives, an interrupt waits: a save that has begun ends, and leaves nothing half done beside the
/// file. Devices and pipes may keep a writer waiting for ever, so that there an interrupt comes at once.
class Uninterrupted
{
public:
    /// @param iFile what is written
    explicit Uninterrupted(const std::string& iFile);
    ~Uninterrupted();
    Uninterrupted(const Uninterrupted&) = delete;
    Uninterrupted& operator=(const Uninterrupted&) = delete;

private:
    bool m_holds;
    sigset_t m_before = {};
};
} // namespace Tool

#endif
