/**
 * @file
 * Ctrl-C in the shell, at a terminal that sends it as a signal.
 */

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "ShellTest.h"

namespace
{
/// The shell on a terminal of its own, which is typed at whatever the shell is doing.
class TypedShell
{
public:
    TypedShell(const std::string& iFolder, const std::string& iInstallation, const std::string& iModel)
    {
        m_process = forkpty(&m_terminal, nullptr, nullptr, nullptr);
        if (m_process != 0)
            return;
        setenv("TERM", "dumb", 1);
        setenv("NO_COLOR", "1", 1);
        setenv("VYRCFD_HISTORY", "", 1);
        if (chdir(iFolder.c_str()) == 0)
            execl(VYR_TOOL, VYR_TOOL, "shell", iModel.c_str(), "--installation", iInstallation.c_str(), nullptr);
        _exit(127);
    }
    ~TypedShell()
    {
        if (!m_hasEnded)
        {
            kill(m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
        close(m_terminal);
    }
    TypedShell(const TypedShell&) = delete;
    TypedShell& operator=(const TypedShell&) = delete;

    void Type(const std::string& iKeys) const
    {
        ASSERT_EQ(write(m_terminal, iKeys.data(), iKeys.size()), static_cast<ssize_t>(iKeys.size()));
    }

    /// What is shown until a text is, without what was waited for before; everything when it never is.
    std::string Until(const std::string& iText)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        std::size_t at = std::string::npos;
        while ((at = m_shown.find(iText)) == std::string::npos && std::chrono::steady_clock::now() < end && Read())
            ;
        const std::size_t length = at == std::string::npos ? m_shown.size() : at + iText.size();
        std::string shown = m_shown.substr(0, length);
        m_shown.erase(0, length);
        return shown;
    }

    /// The signal that has ended the shell; 0 when it has left by itself.
    int EndedBy()
    {
        while (Read())
            ;
        int state = 0;
        waitpid(m_process, &state, 0);
        m_hasEnded = true;
        return WIFSIGNALED(state) ? WTERMSIG(state) : 0;
    }

private:
    /// @return false when nothing comes any more
    bool Read()
    {
        pollfd waiting{m_terminal, POLLIN, 0};
        if (poll(&waiting, 1, 10000) <= 0)
            return false;
        char buffer[4096];
        const ssize_t count = read(m_terminal, buffer, sizeof(buffer));
        for (ssize_t i = 0; i < count; ++i)
            if (buffer[i] != '\r')
                m_shown += buffer[i];
        return count > 0;
    }

    int m_terminal = -1;
    pid_t m_process = -1;
    std::string m_shown;
    bool m_hasEnded = false;
};

constexpr char Told[] = "interrupted: the command goes on to its end; press Ctrl-C again to leave and lose unsaved "
                        "changes\n";

class ShellInterruptTest : public ShellTest
{
protected:
    /// More than a pipe holds, so that who saves it into one waits for the reader.
    void WriteLargeModel() const
    {
        std::string meshes;
        for (int i = 1; i <= 4000; ++i)
            meshes += ", {\"type\": \"Mesh\", \"name\": \"Many." + std::to_string(i) + "\"}";
        std::string model = Read(Small);
        model.insert(model.rfind('}', model.rfind(']')) + 1, meshes);
        Write("large.model.json", model);
    }

    /// The shell's end of a pipe that a command has opened, with some of the model written and the rest to come.
    int ReaderOf(const std::string& iPipe) const { return open(m_folder.Path(iPipe).c_str(), O_RDONLY); }

    std::string MakePipe() const
    {
        EXPECT_EQ(mkfifo(m_folder.Path("pipe").c_str(), 0666), 0);
        return "pipe";
    }

    TypedShell Open(const std::string& iModel) const { return {m_folder.Path(""), "samples", iModel}; }
};

std::size_t ReadToEnd(int iReader)
{
    std::size_t length = 0;
    char buffer[65536];
    for (ssize_t count = 0; (count = read(iReader, buffer, sizeof(buffer))) > 0;)
        length += static_cast<std::size_t>(count);
    close(iReader);
    return length;
}

TEST_F(ShellInterruptTest, Command_ThatIsInterrupted_RunsToItsEnd_AndTheSessionGoesOn)
{
    WriteLargeModel();
    const std::string pipe = MakePipe();
    TypedShell shell = Open("large.model.json");
    shell.Until(Prompt);
    shell.Type("set Case.1/relaxation 0.1\r");
    shell.Until(Prompt);
    shell.Type("save " + pipe + "\r");
    const int reader = ReaderOf(pipe);
    shell.Type("\x03");
    EXPECT_NE(shell.Until(Told).find(Told), std::string::npos);
    EXPECT_GT(ReadToEnd(reader), 100000U);
    EXPECT_NE(shell.Until(Prompt).find("Saved pipe."), std::string::npos);
    shell.Type("get Case.1/relaxation\r");
    EXPECT_EQ(shell.Until(Prompt), "get Case.1/relaxation\n0.1\nvyrcfd> ");
    // The next command is again one that is to be interrupted twice.
    shell.Type("save " + pipe + "\r");
    const int again = ReaderOf(pipe);
    shell.Type("\x03");
    EXPECT_NE(shell.Until(Told).find(Told), std::string::npos);
    EXPECT_GT(ReadToEnd(again), 100000U);
    shell.Until(Prompt);
    shell.Type("quit\r");
    shell.Until(Prompt);
    shell.Type("quit\r");
    EXPECT_EQ(shell.EndedBy(), 0);
}

TEST_F(ShellInterruptTest, Command_ThatIsInterruptedTwice_EndsTheSession)
{
    WriteLargeModel();
    const std::string pipe = MakePipe();
    TypedShell shell = Open("large.model.json");
    shell.Until(Prompt);
    shell.Type("save " + pipe + "\r");
    const int reader = ReaderOf(pipe);
    shell.Type("\x03");
    EXPECT_NE(shell.Until(Told).find(Told), std::string::npos);
    shell.Type("\x03");
    EXPECT_EQ(shell.EndedBy(), SIGINT);
    close(reader);
}

struct InterruptedKeys
{
    const char* name;
    /// Typed after "set Case.1/relaxation 0.1", which is what a search finds.
    std::string keys;
    /// What shows that they are being read.
    std::string shown;
};

void PrintTo(const InterruptedKeys& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class InterruptedLines : public ShellInterruptTest, public testing::WithParamInterface<InterruptedKeys>
{
};

TEST_P(InterruptedLines, AreEmpty_AndRunNothing)
{
    TypedShell shell = Open(Small);
    shell.Until(Prompt);
    shell.Type("set Case.1/relaxation 0.1\r");
    shell.Until(Prompt);
    shell.Type("set Case.1/relaxation 0.2\r");
    shell.Until(Prompt);
    shell.Type(GetParam().keys);
    const std::string seen = shell.Until(GetParam().shown);
    EXPECT_NE(seen.find(GetParam().shown), std::string::npos) << seen;
    shell.Type("\x03");
    shell.Until("\nvyrcfd> ");
    shell.Type("get Case.1/relaxation\r");
    const std::string answer = shell.Until("0.2\n");
    // At the beginning of the line, which a slow machine may still be about to show.
    const std::size_t command = answer.find("get Case.1/relaxation\n0.2\n");
    ASSERT_NE(command, std::string::npos) << answer;
    EXPECT_TRUE(command == 0 || answer.substr(0, command).ends_with(Prompt)) << answer;
}

const InterruptedKeys Interrupted[] = {
    {"Typed", "set Case.1/relaxation 0.3", "0.3"},
    {"FoundBackwards", "\x12" + std::string("0.1"), "0.1': set Case.1/relaxation 0.1"},
    {"SoughtAndNotFound", "\x12" + std::string("nowhere"), "e': set Case.1/relaxation 0.2"},
    {"FoundInTheHistoryWithoutSearch", "\x10", "set Case.1/relaxation 0.2"},
    {"WithAnArgument", "set Case.1/relaxation 0.\x1b" + std::string("3"), "(arg: 3) "},
};
INSTANTIATE_TEST_SUITE_P(Terminal, InterruptedLines, testing::ValuesIn(Interrupted),
                         [](const auto& iInfo) { return iInfo.param.name; });
} // namespace
