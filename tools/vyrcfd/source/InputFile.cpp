#include "InputFile.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Failure.h"
#include "Progress.h"
#include "VYRStandaloneErrors.h"
#include "Wording.h"

namespace Tool
{
namespace
{
constexpr char TooLargeInput[] = "is too large: a model or a catalog has at most 2 GB";

[[noreturn]] void RefuseInput(const std::string& iFile, const std::string& iWhy)
{
    throw VYRStandalone::DocumentError(iFile, "", iWhy);
}

[[noreturn]] void FailToRead(const std::string& iFile)
{
    RefuseInput(iFile, "cannot be read: " + std::generic_category().message(errno));
}

struct stat StatusOf(const std::string& iFile)
{
    struct stat status = {};
    if (stat(iFile.c_str(), &status) != 0)
        status = {};
    return status;
}

bool IsOpenAs(int iDescriptor, const struct stat& iFile)
{
    struct stat status = {};
    return fstat(iDescriptor, &status) == 0 && status.st_dev == iFile.st_dev && status.st_ino == iFile.st_ino;
}

/// The descriptor by which the process has a pipe open; -1 for none.
int DescriptorOf(const struct stat& iPipe)
{
    std::error_code ignored;
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator("/proc/self/fd", ignored))
    {
        const int descriptor = std::atoi(entry.path().filename().c_str());
        if (IsOpenAs(descriptor, iPipe))
            return descriptor;
    }
    return -1;
}

void WriteAll(const std::string& iFile, int iTo, const char* iBytes, std::size_t iCount)
{
    for (std::size_t written = 0; written < iCount;)
    {
        const ssize_t count = write(iTo, iBytes + written, iCount - written);
        if (count < 0 && errno != EINTR)
            FailToRead(iFile);
        written += static_cast<std::size_t>(count < 0 ? 0 : count);
    }
}

void CopyPipe(const std::string& iFile, int iFrom, int iTo)
{
    std::array<char, 65536> bytes{};
    for (std::uintmax_t all = 0;;)
    {
        const ssize_t count = read(iFrom, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            FailToRead(iFile);
        if (count == 0)
            return;
        all += static_cast<std::uintmax_t>(count);
        if (all > LargestInput)
            RefuseInput(iFile, TooLargeInput);
        WriteAll(iFile, iTo, bytes.data(), static_cast<std::size_t>(count));
    }
}

/// Puts a file without a name in place of the pipe, under the pipe's descriptor.
void KeepPipe(const std::string& iFile, int iDescriptor)
{
    const Progress progress("Reading " + OneLine(iFile));
    const int kept = memfd_create("input", MFD_CLOEXEC);
    if (kept < 0)
        FailToRead(iFile);
    try
    {
        CopyPipe(iFile, iDescriptor, kept);
    }
    catch (const VYRStandalone::DocumentError&)
    {
        close(kept);
        throw;
    }
    dup2(kept, iDescriptor);
    close(kept);
}
} // namespace

void AdmitInput(const std::string& iFile)
{
    if (iFile.empty())
        throw Failure("\"\" names no file");
    struct stat status = StatusOf(iFile);
    if (S_ISFIFO(status.st_mode))
    {
        if (const int descriptor = DescriptorOf(status); descriptor >= 0)
            KeepPipe(iFile, descriptor);
        status = StatusOf(iFile);
    }
    if (S_ISFIFO(status.st_mode))
        RefuseInput(iFile, "is a named pipe, not a file; /dev/stdin takes what comes through one, as in "
                           "\"vyrcfd show /dev/stdin < PIPE\"");
    if (S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode) || S_ISSOCK(status.st_mode))
        RefuseInput(iFile, "is a device, not a file");
    if (S_ISREG(status.st_mode) && static_cast<std::uintmax_t>(status.st_size) > LargestInput)
        RefuseInput(iFile, TooLargeInput);
}

bool IsFromPipe(const std::string& iFile)
{
    const struct stat status = StatusOf(iFile);
    if (S_ISFIFO(status.st_mode))
        return IsOpenAs(STDIN_FILENO, status) && !IsOpenAs(STDOUT_FILENO, status);
    return S_ISREG(status.st_mode) && status.st_nlink == 0;
}
} // namespace Tool
