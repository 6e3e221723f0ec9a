/**
 * @file
 * A process that is killed while it saves leaves the old file or the new one, whole, and no litter that grows.
 */

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "ExactDump.h"
#include "Sanitized.h"
#include "TemporaryFolder.h"
#include "TestCatalog.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::DocumentError;
using VYRStandalone::Model;

/// What a process tells the one that will kill it, in memory that both see.
struct Progress
{
    std::atomic<int> saves;
    std::atomic<int> failures;
};

/// A process of its own that saves two models in turn into one file until it is killed.
class Saver
{
public:
    Saver(const Model& iOdd, const Model& iEven, const std::string& iFile, Progress& ioProgress) : m_process(fork())
    {
        if (m_process == 0)
            SaveForEver(iOdd, iEven, iFile, ioProgress);
    }

    ~Saver() { Kill(); }
    Saver(const Saver&) = delete;
    Saver& operator=(const Saver&) = delete;

    bool IsRunning() const noexcept { return m_process > 0; }

    /// Kills it if it is still alive, and waits for its end. @return whether it was killed
    bool Kill()
    {
        if (!IsRunning())
            return false;
        kill(m_process, SIGKILL);
        int status = 0;
        while (waitpid(m_process, &status, 0) < 0 && errno == EINTR)
            ;
        m_process = -1;
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

private:
    [[noreturn]] static void SaveForEver(const Model& iOdd, const Model& iEven, const std::string& iFile,
                                         Progress& ioProgress)
    {
        for (int i = 1;; ++i)
        {
            try
            {
                (i % 2 == 0 ? iEven : iOdd).Save(iFile);
                ++ioProgress.saves;
            }
            catch (const DocumentError&)
            {
                ++ioProgress.failures;
            }
        }
    }

    pid_t m_process;
};

/// For its life, temporary folders are made in memory where the system has a place for that.
class FoldersInMemory
{
public:
    explicit FoldersInMemory(bool iIsWanted)
    {
        if (const char* before = std::getenv("TMPDIR"))
            m_before = before;
        if (iIsWanted && access("/dev/shm", W_OK) == 0)
            setenv("TMPDIR", "/dev/shm", 1);
    }
    ~FoldersInMemory()
    {
        if (m_before)
            setenv("TMPDIR", m_before->c_str(), 1);
        else
            unsetenv("TMPDIR");
    }
    FoldersInMemory(const FoldersInMemory&) = delete;
    FoldersInMemory& operator=(const FoldersInMemory&) = delete;

private:
    std::optional<std::string> m_before;
};

class KilledSaves : public testing::Test
{
protected:
    explicit KilledSaves(bool iIsInMemory = true)
        : m_place(iIsInMemory),
          m_progress(static_cast<Progress*>(
              mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
    {
        TestCatalog::Declare();
        m_file = m_folder.Path("m.model.json");
    }
    ~KilledSaves() override { munmap(m_progress, sizeof(Progress)); }

    void SetUp() override
    {
        ASSERT_NE(m_progress, MAP_FAILED);
        m_odd = Model::Parse(Filled("odd", 200), "odd");
        // Of another length, so that a file that was written over in place would show.
        m_even = Model::Parse(Filled("even", 150), "even");
        m_oddText = m_odd.Text();
        m_evenText = m_even.Text();
        ASSERT_NE(m_oddText, m_evenText);
        ASSERT_GT(m_evenText.size(), 20000U);
    }

    static std::string Filled(const std::string& iLabel, int iCount)
    {
        std::string objects;
        for (int i = 0; i < iCount; ++i)
            objects += (i == 0 ? "" : ",") + (R"({"type": "Part", "name": ")" + iLabel + std::to_string(i) +
                                              R"(", "values": {"label": ")" + iLabel + "\"}}");
        return TestCatalog::Model(objects);
    }

    /// Which of the two the file is, as a text for messages.
    std::string Which() const
    {
        const std::string text = m_folder.Read("m.model.json");
        if (text == m_oddText)
            return "odd";
        return text == m_evenText ? "even"
                                  : "neither: " + std::to_string(text.size()) + " bytes: " + text.substr(0, 80);
    }

    /// Until so many more saves are done.
    void WaitForSaves(int iCount) const
    {
        const int wanted = m_progress->saves + iCount;
        const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (m_progress->saves < wanted && std::chrono::steady_clock::now() < until)
            std::this_thread::sleep_for(std::chrono::microseconds(50));
        ASSERT_GE(m_progress->saves, wanted) << "a process does not get on with its work";
    }

    /// Files beside the model's.
    std::size_t Litter() const { return m_folder.Names().size() - 1; }

    const FoldersInMemory m_place;
    const TemporaryFolder m_folder;
    std::string m_file;
    Model m_odd;
    Model m_even;
    std::string m_oddText;
    std::string m_evenText;
    Progress* m_progress;
};

struct KillPlace
{
    const char* what;
    bool isInMemory;
    int kills;
};

/// A thousand together. A process that waits for the disk dies only when that has answered, so that most of them save
/// in memory, where many more moments are met in the same time.
class KilledSavesInPlaces : public KilledSaves, public testing::WithParamInterface<KillPlace>
{
protected:
    KilledSavesInPlaces() : KilledSaves(GetParam().isInMemory) {}
};

INSTANTIATE_TEST_SUITE_P(Places, KilledSavesInPlaces,
                         testing::Values(KillPlace{"InMemory", true, Repetitions(900)},
                                         KillPlace{"OnDisk", false, 100}),
                         [](const testing::TestParamInfo<KillPlace>& iInfo) { return std::string(iInfo.param.what); });

TEST_P(KilledSavesInPlaces, LeaveTheOldFileOrTheNewOneWhole)
{
    constexpr int LongestLifeInMicroseconds = 3000;
    const int kills = GetParam().kills;
    std::mt19937 random(4);
    m_even.Save(m_file);
    int odd = 0;
    int even = 0;
    int interrupted = 0;
    std::size_t mostLitter = 0;
    // A save in memory is short, so that few kills come in the middle of one.
    for (int i = 0; i < kills || (interrupted == 0 && i < 10 * kills); ++i)
    {
        Saver saver(m_odd, m_even, m_file, *m_progress);
        ASSERT_TRUE(saver.IsRunning());
        // However slow the disk is, some live until their first save is done, and some until their second.
        if (i % 10 == 0)
            WaitForSaves(i % 20 == 0 ? 1 : 2);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % LongestLifeInMicroseconds));
        ASSERT_TRUE(saver.Kill());
        const std::string which = Which();
        ASSERT_TRUE(which == "odd" || which == "even") << "after kill " << i << ' ' << which;
        ++(which == "odd" ? odd : even);
        interrupted += Litter() != 0 ? 1 : 0;
        mostLitter = std::max(mostLitter, Litter());
    }
    EXPECT_EQ(m_progress->failures, 0);
    // That the kills came in the middle of saves, and not all before the first or between two.
    EXPECT_GE(m_progress->saves, kills / 10);
    EXPECT_GT(odd, 0);
    EXPECT_GT(even, 0);
    EXPECT_GT(interrupted, 0);
    RecordProperty("saves", m_progress->saves);
    RecordProperty("interrupted", interrupted);

    // What a killed save leaves is taken away by the next one, so that there is never more than one.
    EXPECT_LE(mostLitter, 1U);
    m_odd.Save(m_file);
    EXPECT_EQ(Litter(), 0U);
    EXPECT_EQ(Which(), "odd");
    EXPECT_EQ(ExactDump(Model::Load(m_file)), ExactDump(m_odd));
}

TEST_F(KilledSaves, AreNeverSeenHalfByAReader)
{
    m_even.Save(m_file);
    const Saver saver(m_odd, m_even, m_file, *m_progress);
    ASSERT_TRUE(saver.IsRunning());
    int odd = 0;
    // On a busy machine a hundred saves may pass between two looks.
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (m_progress->saves < 100 || (odd == 0 && std::chrono::steady_clock::now() < until))
    {
        const std::string which = Which();
        ASSERT_TRUE(which == "odd" || which == "even") << which;
        odd += which == "odd" ? 1 : 0;
    }
    EXPECT_GT(odd, 0);
    EXPECT_EQ(m_progress->failures, 0);
}

/// Several processes save into one folder: none takes the file away that another is writing.
TEST_F(KilledSaves, OfOtherProcesses_DoNotDisturb)
{
    m_even.Save(m_file);
    const std::string other = m_folder.Path("other.model.json");
    const Saver first(m_odd, m_even, m_file, *m_progress);
    const Saver second(m_odd, m_even, m_file, *m_progress);
    const Saver third(m_even, m_odd, other, *m_progress);
    ASSERT_TRUE(first.IsRunning() && second.IsRunning() && third.IsRunning());
    WaitForSaves(300);
    EXPECT_EQ(m_progress->failures, 0);
}

TEST_F(KilledSaves, OtherFilesOfTheFolderAreLeftAlone)
{
    for (const char* name : {".vyrcfd-", ".vyrcfd-1", "vyrcfd-1-0.tmp", "x.vyrcfd-1-0.tmp", ".tmp", ".vyrcfd-1-0.tmp~"})
        m_folder.Write(name, "somebody's");
    m_folder.Write(".vyrcfd-1-0.tmp/inside", "a folder's");
    const std::size_t before = m_folder.Names().size();
    m_odd.Save(m_file);
    EXPECT_EQ(m_folder.Names().size(), before + 1);
    EXPECT_EQ(m_folder.Read(".vyrcfd-1-0.tmp/inside"), "a folder's");
}
} // namespace
