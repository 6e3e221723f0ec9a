#ifndef ORXTie_H
#define ORXTie_H

/**
 * @file
 * How an interface of an extension class is put together: directly (the class derives from the interface) or by a tie
 * (a small object that implements the interface and forwards to the extension instance). Link-time seam.
 */

#include "ORXFillDictionary.h"
#include "ORXMetaClass.h"

/**
 * What the object model keeps in a tie. The tie derives from its interface and holds this record as a member; the
 * interface has `ORXBaseUnknown` as its first base.
 */
struct ORXTieRecord
{
    /// The tie itself.
    ORXBaseUnknown* tie = nullptr;
    /// Root of the extended object. The tie holds one reference on it as long as anybody but the object holds the tie.
    ORXBaseUnknown* extended = nullptr;
    /// The extension instance that the tie forwards to; owned by the extended object.
    ORXBaseUnknown* instance = nullptr;
    /// Meta class of the tie.
    ORXMetaClass* meta = nullptr;
    /// References on the tie.
    unsigned int count = 0;
    /// Those of them that are the object's own, which keeps the tie for its next notification. None on a tie that it
    /// does not keep.
    unsigned int kept = 0;
};

/**
 * Builds a direct extension: finds the instance of the class on the object, or makes it through `iConstructor` and
 * links it. @return the instance with a reference added (on the object), null while it is under construction.
 */
ORXHostExport ORXBaseUnknown* ToCreateBOA(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension, ORXMetaClass* iClass,
                                          const IID& iInterface, ORXInstanceConstructor iConstructor);

/// Finds the shared tie of an interface on an object. New reference, null when there is none.
ORXHostExport ORXBaseUnknown* Tie_Link(ORXBaseUnknown* iExtended, ORXBaseUnknown* iExtension, const IID& iInterface);

/**
 * Links a new tie to an object: fills the record, adds a reference on the object, finds the instance of the extension
 * class that the tie's meta class names, or makes it through `iConstructor`, and makes a tie whose meta class says that
 * it is shared known to the object. The tie starts with one reference.
 * @param iKind kind of the extension class, as its meta class holds it
 * @param ioSharedSlot a static of the extension class; kept for hosts that chain their ties, not used here
 */
ORXHostExport void Tie_Construct(ORXTieRecord& ioTie, ORXBaseUnknown* iTie, ORXMetaClass* iTieMeta,
                                 ORXBaseUnknown* iExtended, const IID& iInterface, ENUMTypeOfClass iKind,
                                 void** ioSharedSlot, ORXInstanceConstructor iConstructor, ORXBaseUnknown* iExtension);

/// `QueryInterface` of a tie: the interface's own identifier gives the tie, everything else asks the object.
ORXHostExport HRESULT Tie_Query(ORXTieRecord& ioTie, const IID& iInterface, void** oInterface);
/// `AddRef` of a tie. @return the references that there are now
ORXHostExport unsigned int Tie_AddRef(ORXTieRecord& ioTie);

/**
 * `Release` of a tie. @param oMustDelete set to 1 when the last reference has gone: the caller then deletes the tie.
 * @return the references that are left
 */
ORXHostExport unsigned int Tie_Release(int* oMustDelete, ORXTieRecord& ioTie, ENUMTypeOfClass iKind);

/// Destruction of a tie: a shared tie is forgotten by its object, and the reference on the object is given back.
ORXHostExport void Tie_Destruct(ORXTieRecord& ioTie, ENUMTypeOfClass iKind);

#endif
