#ifndef IUnknown_H
#define IUnknown_H

/**
 * @file
 * The counting root. Run-time seam.
 *
 * Three phrases are used for raw pointers in all headers of the host:
 * - "new reference": the caller releases it when done, best by handing it to `ORXHandle::Adopt` at once;
 * - "borrowed, valid until ...": the caller does not release it;
 * - "new object, caller deletes".
 * A raw pointer argument is borrowed by the operation until it returns.
 */

#include "ORXExport.h"
#include "ORXGuid.h"
#include "ORXStatus.h"

/// What every component answers: casting and counting.
class ORXHostExport IUnknown
{
public:
    /**
     * Asks the component for an interface.
     * @param oInterface receives the interface as a new reference, null if the component does not offer it. The
     *        caller sets it to null before the call.
     * @return S_OK, or E_NOINTERFACE with a null pointer. Never fails loudly.
     */
    virtual HRESULT QueryInterface(const IID& iInterface, void** oInterface) = 0;

    /// Adds a reference to the component. Counts are not atomic: one model belongs to one thread at a time.
    virtual unsigned int AddRef() = 0;

    /// Gives a reference back; the last one destroys the component. Returns the references that are left.
    virtual unsigned int Release() = 0;

protected:
    ~IUnknown() = default;
};

#endif
