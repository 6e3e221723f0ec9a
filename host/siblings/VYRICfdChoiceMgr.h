#ifndef VYRICfdChoiceMgr_H
#define VYRICfdChoiceMgr_H

/**
 * @file
 * Run-time seam.
 */

#include <set>
#include <vector>

#include "ORXBaseUnknown.h"
#include "ORXUnicodeString.h"

class ORXMetaClass;

/**
 * Narrows and widens what one Choice offers, always within what its start-up declares. The order of a result comes from
 * a list, never from a set: sets only tell what is in and what is out.
 */
class ORXHostExport VYRICfdChoiceMgr : public ORXBaseUnknown
{
public:
    /// Restricts the Choice to some of the declared choices, in the order given. @param iDefault one of `iChoices`
    virtual HRESULT ConfigureChoiceMgr(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault,
                                       const ORXUnicodeString& iDisplay) = 0;
    /// Returns to the declared lists. @param iKeepValue nonzero makes the present value the default, 0 the declared one
    virtual HRESULT Reset(unsigned char iKeepValue) = 0;
    /// Appends the declared choices, and gives the declared default.
    virtual HRESULT GetAllChoices(std::vector<ORXUnicodeString>& oChoices, ORXUnicodeString& oDefaultChoice) = 0;
    /// As `ProhibitChoices` with this one.
    virtual HRESULT ProhibitChoice(const ORXUnicodeString& iChoice) = 0;
    /// Takes choices out. What is not offered is passed over.
    virtual HRESULT ProhibitChoices(const std::set<ORXUnicodeString>& iProhibited) = 0;
    /// Puts declared choices back, in the declared order. What is not declared is passed over. The set stays as it is.
    virtual HRESULT AddChoices(std::set<ORXUnicodeString>& iAdded) = 0;

    static const IID& ClassId() noexcept { return IID_VYRICfdChoiceMgr; }
    /// Link-time seam. Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

using VYRICfdChoiceMgr_var = ORXHandle<VYRICfdChoiceMgr>;

#endif
