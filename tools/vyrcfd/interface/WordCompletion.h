#ifndef WordCompletion_H
#define WordCompletion_H

/**
 * @file
 * What a word of the command line could become, for the completion of shells.
 */

#include <string>
#include <vector>

#include "CommandLine.h"

namespace Tool
{
struct WordCompletion
{
    enum class Source
    {
        /// The candidates, and nothing else.
        Candidates,
        /// What stands on the disk.
        Files,
        Folders
    };
    struct Candidate
    {
        std::string text;
        std::string description;
    };

    Source source = Source::Candidates;
    /// End of the files' names that are of use; empty for any.
    std::string suffix;
    std::vector<Candidate> candidates;

    /// For the scripts of the shells: first the source, `words`, `files`, `files .model.json` or `folders`, then a line
    /// for each candidate, with a tabulator in front of its description.
    std::string Text() const;
};

/**
 * @param iWords behind the program's name, up to the one that is completed, which may be empty
 * @return what the word, or behind an option and "=" its value, may become; nothing where nothing fits, also where a
 * model or a configuration file cannot be read
 */
WordCompletion CompleteWord(const CommandDescription& iProgram, const std::vector<std::string>& iWords);
} // namespace Tool

#endif
