#ifndef SecondHost_H
#define SecondHost_H

/**
 * @file
 * What the second host offers beside the headers of host/: declaring types, making objects, and its reports.
 *
 * It is the shortest host on which the cursor and the conditions run. It has no enumerations, start-ups, notifications,
 * extensions and documents: what would need them throws, and nobody between catches it.
 */

#include <stdexcept>
#include <string>
#include <vector>

#include "ORXIContainer.h"
#include "ORXISpecObject.h"

namespace SecondHost
{
struct Attribute
{
    const char* name;
    int type;
    int listType = 0;
    /// Of a component, the type of the one that comes with its owner; "" for none.
    const char* part = "";
};

/// The type has its base's attributes and these. A base has been declared before; "" is none. A type that stands is left
/// as it is.
ORXHostExport void Declare(const char* iType, const char* iBase, const std::vector<Attribute>& iAttributes);

/// The reactions that end a run: the faults for which host/ has a function, and what this host does not offer.
enum class Fault
{
    NullHandle,
    NullPointer,
    NotOffered
};

class ORXHostExport FatalError : public std::logic_error
{
public:
    FatalError(Fault iFault, const std::string& iText) : std::logic_error(iText), fault(iFault) {}

    const Fault fault;
};

ORXHostExport ORXIContainer_var MakeContainer();

/// Lets the objects of a container go.
ORXHostExport void Close(const ORXIContainer_var& iContainer);

/// An object outside every container. Null for a type that was not declared.
ORXHostExport ORXISpecObject_var Make(const char* iType, const char* iName);

/// One line a report, oldest first, and none left: `assertion|error|call "TEXT" FUNCTION STATUS`.
ORXHostExport std::vector<std::string> TakeReports();

/// Components that have not died.
ORXHostExport int LiveComponents();
} // namespace SecondHost

#endif
