#ifndef VYRCfdChoiceMgrAdp_H
#define VYRCfdChoiceMgrAdp_H

/**
 * @file
 * Managers of Choices.
 */

#include "VYRCfdBaseExport.h"
#include "VYRICfdChoiceMgr.h"

/**
 * Narrows and widens what one Choice offers, within what its start-up object declares. It holds no data: the declared
 * lists are those of the start-up, the current ones those of the feature, and both are read afresh each time.
 *
 * No class of this library implements the interface for a feature type; derive from here and register the class for
 * the types that are to have a manager.
 *
 * All checks come before the first write. The lists are read without looking at how that went: a list that cannot be
 * read is an empty one. Failures are reported. An operation costs time in the order of the choices that it is given
 * times the declared ones, and one update of the Choice.
 */
class VYRCfdBaseExport VYRCfdChoiceMgrAdp : public VYRICfdChoiceMgr
{
public:
    VYRCfdChoiceMgrAdp();
    ~VYRCfdChoiceMgrAdp() override;

    /// @return E_FAIL for an empty list, an undeclared entry ("Invalid choice %s") or a default outside the list;
    /// otherwise what `VYRICfdChoice::Configure` answers
    HRESULT ConfigureChoiceMgr(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault,
                               const ORXUnicodeString& iDisplay) override;

    /// Leaves the value alone: one that was set stays as long as it is declared. An empty declared display text leaves
    /// that of the feature.
    HRESULT Reset(unsigned char iKeepValue) override;

    /// Appends the choices of the start-up, and gives its value as the default.
    HRESULT GetAllChoices(std::vector<ORXUnicodeString>& oChoices, ORXUnicodeString& oDefaultChoice) override;
    /// As `ProhibitChoices` with this one.
    HRESULT ProhibitChoice(const ORXUnicodeString& iChoice) override;

    /// @return S_OK also when the update at the end fails, as it does when nothing is left to choose
    HRESULT ProhibitChoices(const std::set<ORXUnicodeString>& iProhibited) override;

    /**
     * Leaves the choices in their declared order, and drops those that are not declared.
     *
     * On a Choice whose start-up has startups, `choices` is afterwards left holding the startups' names, and `Startups`
     * is left as it was. It is kept as callers know it.
     * @return S_OK also when the update at the end fails
     */
    HRESULT AddChoices(std::set<ORXUnicodeString>& iAdded) override;
};

#endif
