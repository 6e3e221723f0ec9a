#ifndef ORXKeySetVYRCfdBase_H
#define ORXKeySetVYRCfdBase_H

/**
 * @file
 * Attribute keys of the feature types of the catalog "VYRCfdBase".
 */

#include "VYRCfdBaseExport.h"

class ORXISpecAttrAccess;
class ORXISpecAttrKey;

/**
 * One accessor for each attribute. It finds the key on the first object that it is asked for and keeps it for the life
 * of the process: from then on a call is one load and one test, and does not use its argument. Keys are borrowed, valid
 * until the process ends; null when the object is of a foreign type, and a null is not kept. The first calls must not
 * overlap on two threads.
 */
class VYRCfdBaseExport ORXKeySetVYRCfdBase
{
public:
    ORXKeySetVYRCfdBase() = default;
    ORXKeySetVYRCfdBase(const ORXKeySetVYRCfdBase&) = default;
    ORXKeySetVYRCfdBase(ORXKeySetVYRCfdBase&&) noexcept {}
    /// There is nothing to assign.
    ORXKeySetVYRCfdBase& operator=(const ORXKeySetVYRCfdBase&) { return *this; }
    ORXKeySetVYRCfdBase& operator=(ORXKeySetVYRCfdBase&&) noexcept { return *this; }

    static ORXISpecAttrKey* GetKeyVYRCfdChoiceData(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdChoiceStartups(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdChoicechoices(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdChoicedataName(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdChoicedefaultManagement(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdChoicedisplay(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdChoicevalue(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdDefaultManagementconfiguration(ORXISpecAttrAccess* iAccess);
    static ORXISpecAttrKey* GetKeyVYRCfdValuesdefaultManagement(ORXISpecAttrAccess* iAccess);
};

/// Names an accessor itself, to be handed to a cursor or called: `access[VYRCFDBASE(Choice, value)]`.
#define VYRCFDBASE(Type, attr) ORXKeySetVYRCfdBase::GetKeyVYRCfd##Type##attr

#endif
