#include "Uninterrupted.h"

#include <filesystem>

namespace Tool
{
namespace
{
bool MayBlock(const std::string& iFile)
{
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(iFile, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}
} // namespace

Uninterrupted::Uninterrupted(const std::string& iFile) : m_holds(!MayBlock(iFile))
{
    if (!m_holds)
        return;
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&held, signal);
    pthread_sigmask(SIG_BLOCK, &held, &m_before);
}

Uninterrupted::~Uninterrupted()
{
    if (m_holds)
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}
} // namespace Tool
