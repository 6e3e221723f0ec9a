#include "ToolRun.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "TemporaryFolder.h"

namespace
{
/// What the process needs to start at all, and what sanitizers are steered by.
constexpr const char* HandedOn[] = {"PATH",         "HOME",          "TMPDIR",       "LD_LIBRARY_PATH",
                                    "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LLVM_PROFILE_FILE"};

std::vector<std::string> Environment(const ToolSettings& iSettings)
{
    std::vector<std::string> environment;
    for (const char* name : HandedOn)
        if (const char* value = std::getenv(name); value != nullptr && iSettings.environment.count(name) == 0)
            environment.push_back(std::string(name) + "=" + value);
    for (const auto& [name, value] : iSettings.environment)
        environment.push_back(name + "=" + value);
    return environment;
}

std::vector<char*> Pointers(const std::vector<std::string>& iTexts)
{
    std::vector<char*> pointers;
    for (const std::string& text : iTexts)
        pointers.push_back(const_cast<char*>(text.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

/// In the new process: nothing here allocates.
void Redirect(int iDescriptor, const char* iFile, int iMode = O_WRONLY | O_CREAT)
{
    const int file = open(iFile, iMode, 0666);
    if (file < 0 || dup2(file, iDescriptor) < 0)
        _exit(126);
}

void BreakPipe(int iDescriptor)
{
    int ends[2];
    if (pipe(ends) != 0 || dup2(ends[1], iDescriptor) < 0)
        _exit(126);
    close(ends[0]);
    close(ends[1]);
}

void LimitFiles(unsigned long iLongest)
{
    const rlimit limit{iLongest, iLongest};
    // Past the limit a write fails; the signal that would come first is what a full disk does not send.
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0 || signal(SIGXFSZ, SIG_IGN) == SIG_ERR)
        _exit(126);
}

/// A terminal, for a process that looks whether it has one.
class Terminal
{
public:
    Terminal() : m_descriptor(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (m_descriptor < 0 || grantpt(m_descriptor) != 0 || unlockpt(m_descriptor) != 0)
            throw std::runtime_error("no terminal");
        m_path = ptsname(m_descriptor);
    }
    ~Terminal() { close(m_descriptor); }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    void SetWidth(unsigned short iColumns) const
    {
        winsize size = {};
        size.ws_col = iColumns;
        ioctl(m_descriptor, TIOCSWINSZ, &size);
    }

    const char* Path() const { return m_path.c_str(); }

    /// What is written to it, until the last writer has closed it. At each prompt the next text is typed.
    std::string Converse(const std::vector<std::string>& iTyped) const
    {
        constexpr char EndOfInput[] = "\x04";
        std::string text;
        std::size_t seen = 0;
        std::size_t next = 0;
        char buffer[4096];
        for (ssize_t count = 0; (count = read(m_descriptor, buffer, sizeof(buffer))) > 0;)
        {
            text.append(buffer, static_cast<std::size_t>(count));
            // The prompt comes when the terminal has been set up for typing, and not before.
            for (std::size_t at = 0; (at = text.find(Prompt, seen)) != std::string::npos;)
            {
                seen = at + sizeof(Prompt) - 1;
                Type(next < iTyped.size() ? iTyped[next] : EndOfInput);
                ++next;
            }
        }
        return text;
    }

private:
    void Type(const std::string& iKeys) const
    {
        if (write(m_descriptor, iKeys.data(), iKeys.size()) != static_cast<ssize_t>(iKeys.size()))
            throw std::runtime_error("the terminal takes no keys");
    }

    int m_descriptor;
    std::string m_path;
};

std::string Read(const std::string& iFile)
{
    std::ifstream stream(iFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// What the new process is to become.
struct Start
{
    const ToolSettings& settings;
    char* const* arguments;
    char* const* environment;
    const char* input;
    const char* output;
    const char* errors;
    /// Descriptor of the terminal, -1 for none.
    int terminal;
};

/// Fills a pipe whose writer has ended when somebody reads it.
void PipeIn(const std::string& iText)
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0 || write(ends[1], iText.data(), iText.size()) != static_cast<ssize_t>(iText.size()))
        _exit(126);
    close(ends[1]);
    dup2(ends[0], STDIN_FILENO);
    close(ends[0]);
}

/// In the new process.
[[noreturn]] void Become(const Start& iStart)
{
    if (chdir(iStart.settings.folder.c_str()) != 0)
        _exit(126);
    if (iStart.settings.pipedInput)
        PipeIn(iStart.settings.input);
    else if (iStart.settings.typed.empty())
        Redirect(STDIN_FILENO, iStart.input, O_RDONLY);
    else
        dup2(iStart.terminal, STDIN_FILENO);
    if (iStart.settings.brokenPipe)
        BreakPipe(STDOUT_FILENO);
    else if (iStart.terminal >= 0)
        dup2(iStart.terminal, STDOUT_FILENO);
    else
        Redirect(STDOUT_FILENO, iStart.output);
    Redirect(STDERR_FILENO, iStart.errors);
    if (iStart.settings.longestFile != 0)
        LimitFiles(iStart.settings.longestFile);
    execve(VYR_TOOL, iStart.arguments, iStart.environment);
    _exit(127);
}
} // namespace

ToolRun RunTool(const std::vector<std::string>& iArguments, const ToolSettings& iSettings)
{
    const TemporaryFolder caught;
    const std::string input = caught.Write("input", iSettings.input);
    const std::string output = iSettings.outputFile.empty() ? caught.Path("output") : iSettings.outputFile;
    const std::string errors = caught.Path("errors");
    std::vector<std::string> texts{VYR_TOOL};
    texts.insert(texts.end(), iArguments.begin(), iArguments.end());
    const std::vector<std::string> variables = Environment(iSettings);
    const std::vector<char*> arguments = Pointers(texts);
    const std::vector<char*> environment = Pointers(variables);

    std::optional<Terminal> terminal;
    if (iSettings.terminal || !iSettings.typed.empty())
        terminal.emplace();
    // The terminal ends when its last writer does, so one has to be there before the first read.
    if (terminal)
        terminal->SetWidth(iSettings.columns);
    const int writer = terminal ? open(terminal->Path(), O_RDWR | O_NOCTTY | O_CLOEXEC) : -1;

    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("fork failed");
    if (child == 0)
        Become(
            {iSettings, arguments.data(), environment.data(), input.c_str(), output.c_str(), errors.c_str(), writer});
    if (writer >= 0)
        close(writer);
    const std::string shown = terminal ? terminal->Converse(iSettings.typed) : std::string();
    int state = 0;
    if (waitpid(child, &state, 0) != child)
        throw std::runtime_error("waitpid failed");

    ToolRun run;
    run.status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    run.output = terminal ? shown : iSettings.outputFile.empty() ? Read(output) : std::string();
    run.errors = Read(errors);
    return run;
}
