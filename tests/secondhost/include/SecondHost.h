#ifndef SecondHost_H
#define SecondHost_H

/**
 * @file
 * What the second host offers beside the headers of host/: declaring types, making objects, and its reports.
 *
 * It is the shortest host on which the cursor and the conditions run. It has no enumerations, start-ups, notifications,
 * extensions and documents: what would need them ends the process with a line that says so.
 */

#include <string>
#include <vector>

#include "ORXISpecObject.h"

namespace SecondHost
{
struct Attribute
{
    const char* name;
    int type;
    int listType = 0;
};

/// The type has its base's attributes and these. A base has been declared before; "" is none.
ORXHostExport void Declare(const char* iType, const char* iBase, const std::vector<Attribute>& iAttributes);

/// An object outside every container. Null for a type that was not declared.
ORXHostExport ORXISpecObject_var Make(const char* iType, const char* iName);

/// One line a report, oldest first, and none left: `assertion|error|call "TEXT" FUNCTION STATUS`.
ORXHostExport std::vector<std::string> TakeReports();

/// Components that have not died.
ORXHostExport int LiveComponents();
} // namespace SecondHost

#endif
