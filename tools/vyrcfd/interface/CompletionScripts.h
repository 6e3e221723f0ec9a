#ifndef CompletionScripts_H
#define CompletionScripts_H

/**
 * @file
 * What the shells are told of the program. The scripts know nothing of its commands: at each tabulator they ask the
 * program that is being called, `vyrcfd interface complete -- WORD...`, and hand its answer on.
 */

namespace Tool
{
extern const char BashCompletion[];
extern const char ZshCompletion[];
extern const char FishCompletion[];
} // namespace Tool

#endif
