#include "FileReplacement.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace
{
constexpr mode_t NewFileMode = 0666; // as the process's mask leaves it
constexpr mode_t PermissionBits = 07777;
constexpr std::string_view TemporaryPrefix = ".vyrcfd-";
constexpr std::string_view TemporarySuffix = ".tmp";

std::string Failure(int iError)
{
    return "cannot be written: " + std::generic_category().message(iError);
}

/// A file that is being written. Until it is renamed it is removed when it goes out of sight.
class WrittenFile
{
public:
    WrittenFile(std::string iPath, int iFlags, bool iIsTemporary)
        : m_path(std::move(iPath)), m_descriptor(open(m_path.c_str(), iFlags | O_WRONLY | O_CLOEXEC, NewFileMode)),
          m_isTemporary(iIsTemporary)
    {
    }

    ~WrittenFile()
    {
        if (m_descriptor < 0)
            return;
        close(m_descriptor);
        if (m_isTemporary)
            unlink(m_path.c_str());
    }

    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;

    bool IsOpen() const noexcept { return m_descriptor >= 0; }

    /// Locks the file, so that other saves see that somebody is at work on it; the system unlocks it when the process
    /// is stopped. False when one of them has taken it for left over and removed it just before.
    bool Hold() const
    {
        struct stat status = {};
        flock(m_descriptor, LOCK_EX);
        return fstat(m_descriptor, &status) != 0 || status.st_nlink != 0;
    }

    /// The operations answer 0 or the system's error.
    int Write(const std::string& iText) const
    {
        std::size_t done = 0;
        while (done < iText.size())
        {
            const ssize_t count = write(m_descriptor, iText.data() + done, iText.size() - done);
            if (count < 0 && errno != EINTR)
                return errno;
            done += count > 0 ? static_cast<std::size_t>(count) : 0;
        }
        return 0;
    }

    int SetMode(mode_t iMode) const { return fchmod(m_descriptor, iMode) == 0 ? 0 : errno; }
    int Synchronise() const { return fsync(m_descriptor) == 0 ? 0 : errno; }

    int RenameTo(const std::string& iPath)
    {
        if (std::rename(m_path.c_str(), iPath.c_str()) != 0)
            return errno;
        m_isTemporary = false;
        return 0;
    }

private:
    std::string m_path;
    int m_descriptor;
    bool m_isTemporary;
};

/// Where links lead to, also when nothing stands there yet. Nothing when they lead in a circle.
std::optional<std::filesystem::path> FollowLinks(std::filesystem::path iPath)
{
    constexpr int MostLinks = 40;
    for (int i = 0; i < MostLinks; ++i)
    {
        std::error_code error;
        const std::filesystem::path target = std::filesystem::read_symlink(iPath, error);
        if (error)
            return iPath;
        iPath = iPath.parent_path() / target; // an absolute target stands for itself
    }
    return std::nullopt;
}

/// A name beside the file that no other save uses.
std::string TemporaryPath(const std::filesystem::path& iFile)
{
    static std::atomic<unsigned> count{0};
    const std::string name = std::string(TemporaryPrefix) + std::to_string(getpid()) + "-" + std::to_string(count++);
    return (iFile.parent_path() / name).string().append(TemporarySuffix);
}

bool IsTemporaryName(const std::string& iName)
{
    return iName.size() > TemporaryPrefix.size() + TemporarySuffix.size() &&
           iName.compare(0, TemporaryPrefix.size(), TemporaryPrefix) == 0 &&
           iName.compare(iName.size() - TemporarySuffix.size(), TemporarySuffix.size(), TemporarySuffix) == 0;
}

/// Removes a regular file unless a save is at work on it.
void RemoveUnlessHeld(const std::string& iPath)
{
    const int descriptor = open(iPath.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return;
    struct stat status = {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        unlink(iPath.c_str());
    close(descriptor);
}

/// What saves into the folder have left there that were stopped: each goes with the next save, so that they do not pile
/// up. What cannot be looked at or removed stays.
void RemoveLeftOvers(const std::filesystem::path& iFolder)
{
    // Not by the standard library's iterator, which ends the process where there is no memory for it.
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(iFolder.c_str()), &closedir);
    std::vector<std::string> found;
    while (const dirent* const entry = folder != nullptr ? readdir(folder.get()) : nullptr)
        if (IsTemporaryName(entry->d_name))
            found.push_back((iFolder / entry->d_name).string());
    for (const std::string& path : found)
        RemoveUnlessHeld(path);
}

std::filesystem::path FolderOf(const std::filesystem::path& iFile)
{
    return iFile.has_parent_path() ? iFile.parent_path() : ".";
}

void SynchroniseFolder(const std::filesystem::path& iFile)
{
    const int descriptor = open(FolderOf(iFile).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    // The file is whole either way; only after a crash could the old one be there again.
    fsync(descriptor);
    close(descriptor);
}

std::string WriteInPlace(const std::string& iPath, const std::string& iText)
{
    const WrittenFile file(iPath, 0, false);
    const int error = file.IsOpen() ? file.Write(iText) : errno;
    return error == 0 ? std::string() : Failure(error);
}

/// @param iMode permissions that the file is to have; null leaves those of a new file
std::string WriteAndRename(const std::filesystem::path& iTarget, const std::string& iText, const mode_t* iMode)
{
    constexpr int MostTries = 100;
    // First, since the disk may be full of them.
    RemoveLeftOvers(FolderOf(iTarget));
    std::optional<WrittenFile> file;
    for (int i = 0; i < MostTries; ++i)
    {
        file.emplace(TemporaryPath(iTarget), O_CREAT | O_EXCL, true);
        // A name may be left over from a process that was stopped, and that could not be removed.
        if (file->IsOpen() ? file->Hold() : errno != EEXIST)
            break;
    }
    if (!file->IsOpen())
        return Failure(errno);
    // Before anything stands in it, so that nobody reads what the old file kept from them.
    int error = iMode != nullptr ? file->SetMode(*iMode) : 0;
    if (error == 0)
        error = file->Write(iText);
    if (error == 0)
        error = file->Synchronise();
    if (error == 0)
        error = file->RenameTo(iTarget.string());
    if (error != 0)
        return Failure(error);
    SynchroniseFolder(iTarget);
    return {};
}
} // namespace

std::string ReplaceFile(const std::string& iPath, const std::string& iText)
{
    // The system would take what stands in front of it for the whole name.
    if (iPath.find('\0') != std::string::npos)
        return Failure(EINVAL);
    struct stat status = {};
    const bool exists = stat(iPath.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode))
        return "is a folder, not a file";
    if (exists && !S_ISREG(status.st_mode))
        return WriteInPlace(iPath, iText);
    // Renaming would pass by the protection of the file.
    if (exists && faccessat(AT_FDCWD, iPath.c_str(), W_OK, AT_EACCESS) != 0)
        return Failure(errno);
    const std::optional<std::filesystem::path> target = FollowLinks(iPath);
    if (!target)
        return Failure(ELOOP);
    const mode_t mode = status.st_mode & PermissionBits;
    return WriteAndRename(*target, iText, exists ? &mode : nullptr);
}
