#ifndef Progress_H
#define Progress_H

/**
 * @file
 * Telling somebody who waits that there is work going on.
 */

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace Tool
{
/// For as long as it lives, a line on standard error tells what is done and for how many seconds: only on a terminal,
/// only after half a second, and the line goes with the object. One at a time.
class Progress
{
public:
    explicit Progress(std::string iWork);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Takes the line away, so that something else can be printed there. It comes again with the next second.
    static void Erase();

private:
    void Show();

    std::string m_work;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_isDone = false;
    std::thread m_thread;
};
} // namespace Tool

#endif
