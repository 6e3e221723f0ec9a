#ifndef RealAccess_H
#define RealAccess_H

/**
 * @file
 * The real model's attributes by their names.
 */

#include "ORXICkeParm.h"
#include "ORXISpecAttrAccess.h"
#include "ORXISpecObject.h"
#include "VYRCfdObjectAccess.h"

/// An attribute of an object; `key` is null where the object has none of the name.
struct RealAttribute
{
    RealAttribute(const ORXISpecObject_var& iObject, const std::string& iName)
        : access(iObject), key(ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName.c_str())))
    {
    }

    ORXICkeParm_var Parameter() const { return ORXCke_GetParm(access, key, 1); }

    ORXISpecAttrAccess_var access;
    ORXISpecAttrKey_var key;
};

/// The place of an attribute; one of an object is stayed at, not followed.
inline VYRCfdObjectAccess RealPlace(const ORXISpecObject_var& iObject, const std::string& iName)
{
    const RealAttribute attribute(iObject, iName);
    const VYRCfdObjectAccess cursor{ORXBaseUnknown_var(iObject)};
    if (!attribute.key)
        return cursor[ORXUnicodeString(iName.c_str())];
    const int type = attribute.key->GetType();
    const bool isObject = type == tk_component || type == tk_specobject;
    return isObject ? cursor.Ref(attribute.key) : cursor.Get(attribute.key, 0);
}

#endif
