#ifndef ConditionSuggestions_H
#define ConditionSuggestions_H

#include "FindingList.h"

namespace Tool
{
/// A condition that is to be written in another way, and in which a name is misspelt as well, has a finding for each:
/// the whole condition that the one suggests gets the name that the other one does. Behind all other checks.
void CompleteConditions(FindingList& ioFindings);
} // namespace Tool

#endif
