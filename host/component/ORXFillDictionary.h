#ifndef ORXFillDictionary_H
#define ORXFillDictionary_H

/**
 * @file
 * The dictionary that says which extension class implements which interface for which feature type, and the module
 * object that brings a library's entries into it. Link-time seam.
 */

#include "ORXBaseUnknown.h"

class ORXMetaClass;

/**
 * Gives an interface of an extension class on an object.
 * @param iExtended root of the object that is extended, borrowed
 * @param iExtension instance of the extension class on that object, borrowed; null when there is none yet
 * @return the interface as a new reference, null when it could not be made
 */
using ORXInterfaceCreator = ORXBaseUnknown* (*)(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension);

/// Makes an instance of an extension class with `new`. New object, owned by the object that it is linked to.
using ORXInstanceConstructor = ORXBaseUnknown* (*)();

/// Where the entries of the dictionary are made.
class ORXHostExport ORXFillDictionary
{
public:
    /**
     * Enters one pair of extension class and interface. Idempotent: a pair that stands already is left as it is. The
     * object model asks the entries of the most derived feature type first, and the pairs of one type in the order of
     * their registration.
     */
    static void Register(ORXMetaClass* iClass, ORXMetaClass* iInterface, ORXInterfaceCreator iCreator,
                         void* iReserved = nullptr, int iMode = 1);
};

class ORXOMModule;

/// Enters one pair into the dictionary and returns the module object.
using ORXOMModuleEntry = ORXOMModule* (*)();

/// Bounds of a library's table of registration entries. The table must live until the library is unloaded.
struct ORXOMModuleInfo
{
    /// The first entry, and one behind the last; borrowed.
    /// @{
    const ORXOMModuleEntry* begin;
    const ORXOMModuleEntry* end;
    /// @}
};

/**
 * One per library. The object model runs the entries of the table, in their order, before it answers the next request
 * that needs the dictionary; the library never runs them itself. Destroying the object takes entries that have not
 * been run out of the queue.
 */
class ORXHostExport ORXOMModule
{
public:
    /// Puts the entries of the table into the queue; runs none.
    explicit ORXOMModule(const ORXOMModuleInfo& iInfo);
    ~ORXOMModule();
    ORXOMModule(const ORXOMModule&) = delete;
    ORXOMModule& operator=(const ORXOMModule&) = delete;

private:
    ORXOMModuleInfo m_info;
};

#endif
