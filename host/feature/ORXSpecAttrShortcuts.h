#ifndef ORXSpecAttrShortcuts_H
#define ORXSpecAttrShortcuts_H

/**
 * @file
 * Link-time seam. Optional: where a host does not define `ORXGetSpecAttrShortcuts`, or it gives null, the single
 * operations of attributes are called instead.
 */

#include <cstddef>

#include "ORXExport.h"

class ORXISpecAttrAccess;
class ORXISpecAttrKey;

/// An object, or one attribute of it. Both pointers are new references.
struct ORXSpecAttrPlace
{
    /// Attributes of the object.
    ORXISpecAttrAccess* object = nullptr;
    /// Null for the object itself.
    ORXISpecAttrKey* key = nullptr;
};

/**
 * What is asked of attributes most, in one call instead of several.
 *
 * Each operation is for the plain case alone, in which it does exactly what the single operations do one after the
 * other. It declines wherever one of them would fail, or answer anything out of the ordinary, or where somebody watches
 * the single operations. So it never fails: whoever uses it calls those when it has declined, which is no error and is
 * not reported. What it would have given is left alone then.
 */
class ORXHostExport ORXSpecAttrShortcuts
{
public:
    /**
     * From an object by the name of an attribute: to the object that the attribute holds, if it is one for a single
     * object, else to the attribute itself. Stands for the look-up of the key, its type code, the read of the object
     * and its cast.
     * @param iObject borrowed, not null
     * @param iName not terminated
     * @return false for declined, for an attribute that holds nothing among others
     */
    virtual bool Step(ORXISpecAttrAccess* iObject, const char* iName, std::size_t iBytes,
                      ORXSpecAttrPlace& oPlace) noexcept = 0;

    /// The same by key. @param iKey borrowed, not null
    virtual bool Step(ORXISpecAttrAccess* iObject, ORXISpecAttrKey* iKey, ORXSpecAttrPlace& oPlace) noexcept = 0;

    /// The number of a real attribute that is set. Stands for the look-up of the parameter, its type and its value.
    /// @param iObject, iKey borrowed, not null. @return false for declined
    virtual bool ReadReal(ORXISpecAttrAccess* iObject, ORXISpecAttrKey* iKey, double& oNumber) noexcept = 0;

    /// Writes a real attribute, and tells of it. Stands for the look-up of the parameter, the test of its type and the
    /// write. What listeners throw comes through, and they may let go of the object and of the key: what is needed
    /// behind the notification has to be held. @return false for declined
    virtual bool WriteReal(ORXISpecAttrAccess* iObject, ORXISpecAttrKey* iKey, double iNumber) = 0;

protected:
    ~ORXSpecAttrShortcuts() = default;
};

/// Borrowed, valid until the process ends; the same for all threads. Null for none.
[[gnu::weak]] ORXHostExport ORXSpecAttrShortcuts* ORXGetSpecAttrShortcuts() noexcept;

#endif
