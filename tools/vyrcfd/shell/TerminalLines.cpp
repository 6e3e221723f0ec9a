#include "TerminalLines.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <sys/select.h>
#include <unistd.h>

#include <readline/history.h>
#include <readline/readline.h>

#include "ShellWords.h"

namespace Tool
{
namespace
{
/// The library asks functions without context.
Completer completer;
Completions current;

char* CopyForReadline(const std::string& iText)
{
    char* const copy = static_cast<char*>(std::malloc(iText.size() + 1));
    if (copy != nullptr)
        std::memcpy(copy, iText.c_str(), iText.size() + 1);
    return copy;
}

/// Hands out the candidates one by one.
char* NextCandidate(const char*, int iState)
{
    static std::size_t next = 0;
    if (iState == 0)
        next = 0;
    if (next == current.candidates.size())
        return nullptr;
    const std::string& text = current.candidates[next++].text;
    // Inside quotation marks the library closes them itself.
    return CopyForReadline(rl_completion_quote_character != 0 ? text : AsWord(text));
}

void SettleEnd()
{
    const bool leadsOn = current.candidates.size() == 1 && current.candidates.front().leadsOn;
    rl_completion_append_character = leadsOn ? '/' : ' ';
    // A path in quotation marks goes on inside them.
    rl_completion_suppress_quote = leadsOn ? 1 : 0;
}

char** Complete(const char* iText, int iStart, int)
{
    try
    {
        current = completer(rl_line_buffer, static_cast<std::size_t>(iStart), iText);
    }
    catch (const std::exception&)
    {
        // No help with this word, which is no reason to end; nor must an exception pass through the library.
        current = {};
    }
    if (current.areFiles)
        return nullptr;
    rl_attempted_completion_over = 1;
    SettleEnd();
    return current.candidates.empty() ? nullptr : rl_completion_matches(iText, &NextCandidate);
}

volatile std::sig_atomic_t isTyping = 0;
volatile std::sig_atomic_t wasInterrupted = 0;
volatile std::sig_atomic_t isCommandInterrupted = 0;

/// An interrupt while a line is typed clears the line. A command cannot be broken off without leaving the model half
/// changed, so that the first interrupt lets it run to its end; the second one is for a command that has none.
void Interrupt(int iSignal)
{
    constexpr std::string_view Told = "\ninterrupted: the command goes on to its end; press Ctrl-C again to leave and "
                                      "lose unsaved changes\n";
    if (isTyping != 0)
        wasInterrupted = 1;
    else if (isCommandInterrupted == 0)
    {
        isCommandInterrupted = 1;
        const int error = errno;
        [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, Told.data(), Told.size());
        errno = error;
    }
    else
    {
        // Takes effect when this function returns.
        std::signal(iSignal, SIG_DFL);
        std::raise(iSignal);
    }
}

void ClearInterruptedLine()
{
    wasInterrupted = 0;
    rl_crlf();
    rl_on_new_line();
    rl_replace_line("", 1);
    // Whoever was looking for a line begins again behind the last one.
    using_history();
    rl_redisplay();
}

/// Waits for a key or a signal. @return whether there is a key
bool WaitForKey(std::FILE* iStream)
{
    sigset_t held;
    sigset_t before;
    sigfillset(&held);
    // A signal that came between the look at it and the wait would be heeded at the next key only.
    pthread_sigmask(SIG_BLOCK, &held, &before);
    fd_set keys;
    FD_ZERO(&keys);
    FD_SET(fileno(iStream), &keys);
    const bool isPending = rl_pending_signal() != 0 || wasInterrupted != 0;
    const bool hasKey =
        !isPending && (pselect(fileno(iStream) + 1, &keys, nullptr, nullptr, nullptr, &before) > 0 || errno != EINTR);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return hasKey;
}

/// Asked by the library for a key.
int NextKey(std::FILE* iStream)
{
    constexpr int Abort = 'G' & 0x1f;
    while (!WaitForKey(iStream))
    {
        rl_check_signals();
        if (wasInterrupted == 0)
            continue;
        // What has begun to read keys of its own, as the search in the history, would not notice that the line is
        // another one: it is told to end first.
        if (RL_ISSTATE(RL_STATE_ISEARCH | RL_STATE_NSEARCH | RL_STATE_NUMERICARG | RL_STATE_MOREINPUT))
            return Abort;
        ClearInterruptedLine();
    }
    return rl_getc(iStream);
}

/// For as long as a line is typed.
class Typing
{
public:
    Typing()
    {
        wasInterrupted = 0;
        isTyping = 1;
    }
    ~Typing()
    {
        isCommandInterrupted = 0;
        isTyping = 0;
    }
    Typing(const Typing&) = delete;
    Typing& operator=(const Typing&) = delete;
};
} // namespace

TerminalLines::TerminalLines(Completer iCompleter) : m_formerInterrupt(std::signal(SIGINT, &Interrupt))
{
    completer = std::move(iCompleter);
    rl_readline_name = "vyrcfd";
    rl_attempted_completion_function = &Complete;
    rl_completer_word_break_characters = " \t";
    rl_completer_quote_characters = "\"";
    rl_getc_function = &NextKey;
    // Standard output is the answers' alone where it does not go to the terminal.
    if (isatty(STDOUT_FILENO) == 0)
        rl_outstream = stderr;
}

TerminalLines::~TerminalLines()
{
    rl_attempted_completion_function = nullptr;
    rl_getc_function = &rl_getc;
    std::signal(SIGINT, m_formerInterrupt);
    completer = nullptr;
    current = {};
    clear_history();
}

std::optional<std::string> TerminalLines::Next()
{
    const Typing typing;
    const std::unique_ptr<char, decltype(&std::free)> line(readline("vyrcfd> "), &std::free);
    if (line == nullptr)
    {
        // The prompt does not stay without an end.
        std::fputs("\n", rl_outstream);
        std::fflush(rl_outstream);
        return std::nullopt;
    }
    m_history.Add(line.get());
    return line.get();
}
} // namespace Tool
