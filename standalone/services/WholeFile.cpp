#include "WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace
{
class OpenFile
{
public:
    explicit OpenFile(const std::string& iPath) : m_descriptor(open(iPath.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~OpenFile()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Descriptor() const noexcept { return m_descriptor; }

private:
    int m_descriptor;
};

constexpr char TooLarge[] = "is too large";

std::string LastError()
{
    return std::generic_category().message(errno);
}
} // namespace

std::string ReadWholeFile(const std::string& iPath, std::string& oText, std::size_t iSpare, std::size_t iMost)
{
    // The system would take what stands in front of it for the whole name.
    if (iPath.find('\0') != std::string::npos)
        return "cannot be opened: " + std::generic_category().message(EINVAL);
    const OpenFile file(iPath);
    if (file.Descriptor() < 0)
        return "cannot be opened: " + LastError();
    struct stat status = {};
    if (fstat(file.Descriptor(), &status) != 0)
        return "cannot be read: " + LastError();
    if (S_ISDIR(status.st_mode))
        return "is a folder, not a file";
    if (static_cast<std::size_t>(status.st_size) > iMost)
        return TooLarge;

    // One byte more than it says, which shows the end: a file may be longer by now, and a pipe says nothing.
    constexpr std::size_t Least = 4096;
    oText.resize(std::max(Least, static_cast<std::size_t>(status.st_size) + 1) + iSpare);
    std::size_t filled = 0;
    for (;;)
    {
        if (filled + iSpare == oText.size())
            oText.resize(2 * oText.size());
        const ssize_t count = read(file.Descriptor(), &oText[filled], oText.size() - iSpare - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return "cannot be read: " + LastError();
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
        if (filled > iMost)
            return TooLarge;
    }
    oText.resize(filled);
    return {};
}
