#ifndef TerminalLines_H
#define TerminalLines_H

/**
 * @file
 * Commands from a terminal, with history and completion.
 */

#include <functional>
#include <string_view>
#include <vector>

#include "HistoryFile.h"
#include "LineSource.h"

namespace Tool
{
/// What a word could become.
struct Completion
{
    /// The whole word, not only its rest.
    std::string text;
    /// A "/" may follow, and not only a blank.
    bool leadsOn = false;
};

struct Completions
{
    std::vector<Completion> candidates;
    /// Names of files are wanted in place of candidates.
    bool areFiles = false;
};

/// Gives what the word that begins at a position of a line could become. @param iWord what there is of it
using Completer = std::function<Completions(std::string_view iLine, std::size_t iStart, const std::string& iWord)>;

/// One at a time: the library that reads the lines has one state for the process.
class TerminalLines final : public LineSource
{
public:
    explicit TerminalLines(Completer iCompleter);
    ~TerminalLines() override;
    TerminalLines(const TerminalLines&) = delete;
    TerminalLines& operator=(const TerminalLines&) = delete;

    /// An interrupt (Ctrl-C) clears the line. One that comes between two calls is told of, and the next one
    /// before the following call ends the process.
    std::optional<std::string> Next() override;
    bool IsTerminal() const override { return true; }
    std::string Place() const override { return {}; }

private:
    void (*m_formerInterrupt)(int);
    HistoryFile m_history;
};
} // namespace Tool

#endif
