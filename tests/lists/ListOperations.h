#ifndef ListOperations_H
#define ListOperations_H

/**
 * @file
 * The operations on whole lists, one row each, and what they do where they do not fit.
 */

#include <string>
#include <vector>

#include "ModuleTest.h"

/// What a call answers and reports.
struct Outcome
{
    HRESULT status;
    Records reports;
};

struct ListOperation
{
    const char* name;
    /// Name under which it reports.
    const char* function;
    HRESULT (*call)(const VYRCfdObjectAccess& iCursor, const VYRCfdObjectAccess& iPart);

    /// On a cursor that stands nowhere, and on one that stands at an object.
    Outcome onNothing;
    Outcome onObject;
    /// On an attribute that is no list, and on a list of other entries; where none is refused, one that is taken.
    const char* scalar;
    Outcome onScalar;
    const char* list;
    Outcome onList;
    /// What follows the report of a cursor with an error.
    Records behindError;

    /// Whether it takes an earlier error status back.
    bool resets;
    /// Scopes that it enters on a list where it succeeds, down to level 30.
    const char* fits;
    std::vector<std::string> scopes;
};

const std::vector<ListOperation>& ListOperations();

/// What the reads of objects check of an attribute's key.
inline constexpr char NoObjectList[] = "_spKey->GetType() == tk_list && (_spKey->GetListType() == tk_component || "
                                       "_spKey->GetListType() == tk_specobject)";

#endif
