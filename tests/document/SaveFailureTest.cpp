/**
 * @file
 * Saves for which there is no room, no descriptor or no right: one clear error, the old file whole, nothing beside it.
 */

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "Sanitized.h"
#include "TemporaryFolder.h"
#include "TestCatalog.h"
#include "VYRStandaloneModel.h"
#include "VYRStandaloneServices.h"

namespace
{
namespace fs = std::filesystem;
using VYRStandalone::DocumentError;
using VYRStandalone::Model;
using Names = std::vector<std::string>;

/// A limit of the process, for the life of this.
class Limit
{
public:
    Limit(__rlimit_resource iResource, rlim_t iLimit) : m_resource(iResource)
    {
        EXPECT_EQ(getrlimit(m_resource, &m_before), 0);
        rlimit now = m_before;
        now.rlim_cur = iLimit;
        EXPECT_EQ(setrlimit(m_resource, &now), 0);
    }
    ~Limit() { EXPECT_EQ(setrlimit(m_resource, &m_before), 0); }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

private:
    __rlimit_resource m_resource;
    rlimit m_before = {};
};

/// A write beyond the largest size of a file is answered with an error instead of ending the process.
class IgnoredSizeSignal
{
public:
    IgnoredSizeSignal() : m_before(std::signal(SIGXFSZ, SIG_IGN)) {}
    ~IgnoredSizeSignal() { std::signal(SIGXFSZ, m_before); }
    IgnoredSizeSignal(const IgnoredSizeSignal&) = delete;
    IgnoredSizeSignal& operator=(const IgnoredSizeSignal&) = delete;

private:
    void (*m_before)(int);
};

class FailingSaves : public testing::Test
{
protected:
    FailingSaves() { TestCatalog::Declare(); }

    static Model Sample(int iCount = 3)
    {
        std::string objects;
        for (int i = 0; i < iCount; ++i)
            objects += (i == 0 ? "" : ",") + (R"({"type": "Part", "name": "P)" + std::to_string(i) + "\"}");
        return Model::Parse(TestCatalog::Model(objects), "test");
    }

    /// What is said when the model cannot be saved, the test's folder as "DIR"; empty when it is saved.
    std::string SaveError(const Model& iModel, const std::string& iFile) const
    {
        try
        {
            iModel.Save(iFile);
        }
        catch (const DocumentError& error)
        {
            std::string text = error.what();
            const std::size_t at = text.find(m_folder.Path());
            return at == std::string::npos ? text : text.replace(at, m_folder.Path().size(), "DIR");
        }
        return {};
    }

    void ExpectUntouched() const
    {
        EXPECT_EQ(m_folder.Read("m.json"), "old");
        EXPECT_EQ(m_folder.Names(), (Names{"m.json"}));
    }

    /// Runs in a process of its own, where it mounts what it likes. What it expects is expected here. @return false
    /// where the system does not allow that
    static bool WithOwnMounts(const std::function<void()>& iBody);

    const TemporaryFolder m_folder;
};

constexpr int NotAllowed = 77;

bool FailingSaves::WithOwnMounts(const std::function<void()>& iBody)
{
    const pid_t process = fork();
    if (process == 0)
    {
        const bool isAlone = unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
        if (!isAlone || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            _exit(NotAllowed);
        iBody();
        std::fflush(nullptr);
        _exit(HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
    }
    int status = 0;
    while (process > 0 && waitpid(process, &status, 0) < 0 && errno == EINTR)
        ;
    EXPECT_GT(process, 0);
    const bool isAllowed = !(WIFEXITED(status) && WEXITSTATUS(status) == NotAllowed);
    if (isAllowed)
    {
        EXPECT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
        EXPECT_EQ(WEXITSTATUS(status), EXIT_SUCCESS) << "see above";
    }
    return isAllowed;
}

TEST_F(FailingSaves, BeyondTheLargestSizeOfAFile_SaySoAtWhateverByte)
{
    const std::string file = m_folder.Write("m.json", "old");
    const Model model = Sample();
    const std::size_t size = model.Text().size();
    const IgnoredSizeSignal ignored;
    for (const std::size_t limit : {std::size_t{0}, std::size_t{1}, size / 2, size - 1})
    {
        const Limit limited(RLIMIT_FSIZE, limit);
        EXPECT_EQ(SaveError(model, file), "DIR/m.json: cannot be written: File too large") << limit;
        EXPECT_EQ(SaveError(model, m_folder.Path("new.json")), "DIR/new.json: cannot be written: File too large");
        ExpectUntouched();
    }
    const Limit limited(RLIMIT_FSIZE, size);
    EXPECT_EQ(SaveError(model, file), "") << "it fits exactly";
    EXPECT_EQ(m_folder.Read("m.json"), model.Text());
    EXPECT_EQ(m_folder.Names(), (Names{"m.json"}));
}

TEST_F(FailingSaves, WithoutAFreeDescriptor_SaySo)
{
    if (IsSanitized)
        GTEST_SKIP() << "the sanitizer looks at addresses through a descriptor of its own";
    const std::string file = m_folder.Write("m.json", "old");
    const Model model = Sample();
    {
        const Limit limited(RLIMIT_NOFILE, 0);
        EXPECT_EQ(SaveError(model, file), "DIR/m.json: cannot be written: Too many open files");
    }
    ExpectUntouched();
    EXPECT_EQ(SaveError(model, file), "");
    EXPECT_EQ(m_folder.Read("m.json"), model.Text());
}

TEST_F(FailingSaves, ToNamesThatNoFileCanHave_SaySo)
{
    const std::string file = m_folder.Write("m.json", "old");
    const std::string longName(256, 'n');
    EXPECT_EQ(SaveError(Sample(), m_folder.Path(longName)),
              "DIR/" + longName + ": cannot be written: File name too long");
    EXPECT_EQ(SaveError(Sample(), file + "/"), "DIR/m.json/: cannot be written: Not a directory");
    EXPECT_EQ(SaveError(Sample(), file + "/inside"), "DIR/m.json/inside: cannot be written: Not a directory");
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("new/")), "DIR/new/: cannot be written: No such file or directory");
    EXPECT_EQ(SaveError(Sample(), m_folder.Path(".")), "DIR/.: is a folder, not a file");
    ExpectUntouched();
    // The longest name there can be, which leaves no room for a longer one beside it.
    EXPECT_EQ(SaveError(Sample(), m_folder.Path(longName.substr(1))), "");
    EXPECT_EQ(m_folder.Read(longName.substr(1)), Sample().Text());
    EXPECT_EQ(m_folder.Names().size(), 2U);
}

/// The system would take the part before the zero for the name, and another file would be replaced or read.
TEST_F(FailingSaves, ToNamesWithAZeroByte_TouchNoOtherFile)
{
    const std::string file = m_folder.Write("m.json", "old");
    const std::string name = file + std::string("\0.bak", 5);
    EXPECT_EQ(SaveError(Sample(), name), "DIR/m.json .bak: cannot be written: Invalid argument");
    ExpectUntouched();
    Sample().Save(file);
    EXPECT_THROW(Model::Load(name), DocumentError);
    EXPECT_THROW(VYRStandalone::CheckJson(name), DocumentError);
    EXPECT_NO_THROW(Model::Load(file));
}

TEST_F(FailingSaves, WhereNobodyMayMakeFiles_SaySo)
{
    // The system's own folder refuses also the super-user.
    const std::string error = SaveError(Sample(), "/proc/m.json");
    EXPECT_EQ(error.find("/proc/m.json: cannot be written: "), 0U) << error;
    const std::string onFile = SaveError(Sample(), "/proc/version");
    EXPECT_EQ(onFile.find("/proc/version: cannot be written: "), 0U) << onFile;
}

TEST_F(FailingSaves, ThroughALinkIntoAMissingFolder_SaySoAndKeepTheLink)
{
    fs::create_symlink("missing/m.json", m_folder.Path("link"));
    EXPECT_EQ(SaveError(Sample(), m_folder.Path("link")), "DIR/link: cannot be written: No such file or directory");
    EXPECT_TRUE(fs::is_symlink(m_folder.Path("link")));
    EXPECT_EQ(m_folder.Names(), (Names{"link"}));
}

TEST_F(FailingSaves, OnAFullDisk_KeepTheOldFileAndNothingElse)
{
    const Model large = Sample(2000);
    const Model small = Sample();
    ASSERT_GT(large.Text().size(), 100000U);
    const bool isAllowed = WithOwnMounts([&] {
        ASSERT_EQ(mount("tmpfs", m_folder.Path().c_str(), "tmpfs", 0, "size=64k"), 0);
        const std::string file = m_folder.Path("m.json");
        ASSERT_EQ(SaveError(small, file), "");
        for (int i = 0; i < 3; ++i)
        {
            EXPECT_EQ(SaveError(large, file), "DIR/m.json: cannot be written: No space left on device");
            EXPECT_EQ(SaveError(large, m_folder.Path("n.json")),
                      "DIR/n.json: cannot be written: No space left on device");
            EXPECT_EQ(m_folder.Read("m.json"), small.Text());
            EXPECT_EQ(m_folder.Names(), (Names{"m.json"}));
        }
        EXPECT_EQ(SaveError(Sample(4), file), "") << "there is room again for what fits";
    });
    if (!isAllowed)
        GTEST_SKIP() << "a disk of its own cannot be mounted here";
}

TEST_F(FailingSaves, OnAReadOnlyDisk_KeepTheOldFile)
{
    const bool isAllowed = WithOwnMounts([&] {
        ASSERT_EQ(mount("tmpfs", m_folder.Path().c_str(), "tmpfs", 0, "size=64k"), 0);
        m_folder.Write("m.json", "old");
        ASSERT_EQ(mount(nullptr, m_folder.Path().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
        EXPECT_EQ(SaveError(Sample(), m_folder.Path("m.json")), "DIR/m.json: cannot be written: Read-only file system");
        EXPECT_EQ(SaveError(Sample(), m_folder.Path("n.json")), "DIR/n.json: cannot be written: Read-only file system");
        ExpectUntouched();
    });
    if (!isAllowed)
        GTEST_SKIP() << "a disk of its own cannot be mounted here";
}

/// All goes well up to the last step: a file that something is mounted on cannot be replaced.
TEST_F(FailingSaves, ThatCannotReplaceTheFileAtLast_KeepItAndNothingElse)
{
    const std::string file = m_folder.Write("m.json", "old");
    const bool isAllowed = WithOwnMounts([&] {
        ASSERT_EQ(mount(file.c_str(), file.c_str(), nullptr, MS_BIND, nullptr), 0);
        EXPECT_EQ(SaveError(Sample(), file), "DIR/m.json: cannot be written: Device or resource busy");
        ExpectUntouched();
    });
    if (!isAllowed)
        GTEST_SKIP() << "nothing can be mounted here";
}
} // namespace
