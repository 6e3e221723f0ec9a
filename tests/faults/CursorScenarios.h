#ifndef CursorScenarios_H
#define CursorScenarios_H

/**
 * @file
 * One operation of the cursor on each kind of cursor.
 */

#include "Scenario.h"

/// What the operation takes is made beforehand, as far as it is not the cursor.
struct CursorOperation
{
    const char* name;
    std::function<std::string(const VYRCfdObjectAccess& iCursor, const ORXISpecObject_var& iOther)> call;
    Scenario::Kind kind = Scenario::Kind::Reads;
    /// A cursor that stands at no attribute fails in silence.
    bool isSilent = false;
};

/// A group for each operation, with a scenario for each of `Places`. The other object is the entry "Peer.2".
void AddCursorOperations(std::vector<ScenarioGroup>& ioGroups, const std::vector<CursorOperation>& iOperations);

#endif
