#ifndef ORXISpecObject_H
#define ORXISpecObject_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXTypeCode.h"
#include "ORXUnicodeString.h"

class ORXISpecAttribute;

/// A feature object: its identity, and the road to its parent and its prototype.
class ORXHostExport ORXISpecObject : public ORXBaseUnknown
{
public:
    /// The object's internal name.
    virtual ORXUnicodeString GetName() = 0;

    /// Name of its feature type.
    virtual ORXUnicodeString GetType() = 0;

    /// True for the object's type and every type that it derives from.
    virtual ORXBoolean IsSubTypeOf(const ORXUnicodeString& iType) = 0;

    /**
     * The start-up: the prototype from which the object was made, and which holds the defaults that its type
     * declares. For a component that came into being with its owner it is the matching component of the owner's
     * start-up, for any other object its type's. New reference; null for a start-up itself.
     */
    virtual ORXISpecObject* GetStartup() = 0;

    /// The object that aggregates this one: new reference, null at the top.
    virtual ORXISpecObject* GetOwner() = 0;

    /// The object's container, its owner's for an object that has one. Null for an object outside every model.
    virtual ORXBaseUnknown_var GetContainer() = 0;

    /**
     * Adds an attribute to this object alone. It has no value until one is written, and nobody is told of it.
     * @param iTypeCode one of the scalar codes of `ORXTypeCode`
     * @param iFlag kept with the attribute, without a meaning here
     * @return the attribute, new reference; of a name that the object carries with the same type the attribute that
     *         is there, with another type null
     */
    virtual ORXISpecAttribute* AddAttribute(const ORXUnicodeString& iName, int iTypeCode, int iFlag) = 0;

    static const IID& ClassId() noexcept { return IID_ORXISpecObject; }
};

using ORXISpecObject_var = ORXHandle<ORXISpecObject>;

#endif
