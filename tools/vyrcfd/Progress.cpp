#include "Progress.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <system_error>
#include <unistd.h>

namespace Tool
{
namespace
{
constexpr std::chrono::milliseconds Patience{500};
constexpr std::chrono::seconds Beat{1};
constexpr char EraseLine[] = "\r\x1B[K";

/// Whether there is a line on the terminal.
std::atomic<bool> isShown{false};

void Tell(const std::string& iText)
{
    std::fputs((EraseLine + iText).c_str(), stderr);
    std::fflush(stderr);
    isShown = !iText.empty();
}
} // namespace

Progress::Progress(std::string iWork) : m_work(std::move(iWork))
{
    if (isatty(STDERR_FILENO) == 0)
        return;
    // The thread takes no signals: who holds an interrupt back while it saves does so for its own thread alone.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    try
    {
        m_thread = std::thread([this] { Show(); });
    }
    catch (const std::system_error&)
    {
        // Without a thread to spare the work is done in silence.
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

Progress::~Progress()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isDone = true;
    }
    m_ended.notify_one();
    m_thread.join();
}

void Progress::Erase()
{
    if (isShown)
        Tell("");
}

void Progress::Show()
{
    const auto isDone = [this] { return m_isDone; };
    std::unique_lock lock(m_mutex);
    if (m_ended.wait_for(lock, Patience, isDone))
        return;
    int seconds = 0;
    do
        Tell(m_work + " ..." + (seconds == 0 ? "" : " " + std::to_string(seconds) + " s"));
    while (++seconds, !m_ended.wait_for(lock, Beat, isDone));
    Tell("");
}
} // namespace Tool
