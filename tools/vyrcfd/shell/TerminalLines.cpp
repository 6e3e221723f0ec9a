#include "TerminalLines.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
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

volatile std::sig_atomic_t wasInterrupted = 0;

void Interrupt(int)
{
    wasInterrupted = 1;
}

/// Called by the library when a signal has come while it waits for a key.
int ClearInterruptedLine()
{
    if (wasInterrupted == 0)
        return 0;
    wasInterrupted = 0;
    rl_crlf();
    rl_on_new_line();
    rl_replace_line("", 1);
    // Whoever was looking for a line begins again behind the last one.
    using_history();
    rl_redisplay();
    return 0;
}

/// Ctrl-C ends a session that runs a command, but not one that waits for a line.
class InterruptGuard
{
public:
    InterruptGuard() : m_former(std::signal(SIGINT, &Interrupt)) {}
    ~InterruptGuard() { std::signal(SIGINT, m_former); }
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;

private:
    void (*m_former)(int);
};
} // namespace

TerminalLines::TerminalLines(Completer iCompleter)
{
    completer = std::move(iCompleter);
    rl_readline_name = "vyrcfd";
    rl_attempted_completion_function = &Complete;
    rl_completer_word_break_characters = " \t";
    rl_completer_quote_characters = "\"";
    rl_signal_event_hook = &ClearInterruptedLine;
    // Standard output is the answers' alone where it does not go to the terminal.
    if (isatty(STDOUT_FILENO) == 0)
        rl_outstream = stderr;
}

TerminalLines::~TerminalLines()
{
    rl_attempted_completion_function = nullptr;
    rl_signal_event_hook = nullptr;
    completer = nullptr;
    current = {};
    clear_history();
}

std::optional<std::string> TerminalLines::Next()
{
    const InterruptGuard guard;
    wasInterrupted = 0;
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
