#include "Graphviz.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "Failure.h"

namespace Tool
{
namespace
{
using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

[[noreturn]] void Fail(const std::string& iWhy)
{
    throw Failure("vyrcfd: no SVG without the program dot of Graphviz: " + iWhy +
                  "; without --svg the graph comes as DOT");
}

std::string WordsOf(int iError)
{
    return std::generic_category().message(iError);
}

/// Files and not pipes: neither side waits for the other.
File MakeFile()
{
    File file(std::tmpfile(), &std::fclose);
    if (file == nullptr)
        Fail("no temporary file: " + WordsOf(errno));
    return file;
}

std::string ReadFromStart(std::FILE* iFile)
{
    std::string text;
    char buffer[65536];
    std::rewind(iFile);
    for (std::size_t count = 0; (count = std::fread(buffer, 1, sizeof(buffer), iFile)) > 0;)
        text.append(buffer, count);
    return text;
}

/// What the started program is given: two files for its input and output, and signals as they are by default.
class Actions
{
public:
    Actions(std::FILE* iInput, std::FILE* iOutput)
    {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, fileno(iInput), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&files, fileno(iOutput), STDOUT_FILENO);
        posix_spawnattr_init(&attributes);
        sigset_t signals;
        sigemptyset(&signals);
        sigaddset(&signals, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes, &signals);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    }
    ~Actions()
    {
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }
    Actions(const Actions&) = delete;
    Actions& operator=(const Actions&) = delete;

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
};

void RunDot(std::FILE* iInput, std::FILE* iOutput)
{
    const Actions actions(iInput, iOutput);
    char program[] = "dot";
    char format[] = "-Tsvg";
    char* const arguments[] = {program, format, nullptr};
    pid_t child = 0;
    if (const int error = posix_spawnp(&child, program, &actions.files, &actions.attributes, arguments, environ))
        Fail(error == ENOENT ? "it is not in the folders of PATH" : "it cannot be started: " + WordsOf(error));
    int state = 0;
    while (waitpid(child, &state, 0) < 0)
        if (errno != EINTR)
            Fail("it was lost: " + WordsOf(errno));
    if (!WIFEXITED(state))
        Fail("it was stopped by a signal");
    if (WEXITSTATUS(state) != 0)
        Fail("it ended with status " + std::to_string(WEXITSTATUS(state)));
}
} // namespace

std::string DrawSvg(const std::string& iDot)
{
    const File input = MakeFile();
    const File output = MakeFile();
    if (std::fwrite(iDot.data(), 1, iDot.size(), input.get()) != iDot.size() || std::fflush(input.get()) != 0)
        Fail("no room for its input: " + WordsOf(errno));
    std::rewind(input.get());
    RunDot(input.get(), output.get());
    return ReadFromStart(output.get());
}
} // namespace Tool
