#ifndef VYRICfdChoice_H
#define VYRICfdChoice_H

/**
 * @file
 * Run-time seam.
 */

#include <vector>

#include "ORXBaseUnknown.h"
#include "ORXUnicodeString.h"

class ORXMetaClass;

/**
 * A feature whose value is one of a list of texts, its choices. A choice may come with a startup, the name of a feature
 * type: an instance of it is the Choice's data object for as long as that choice is selected.
 */
class ORXHostExport VYRICfdChoice : public ORXBaseUnknown
{
public:
    /**
     * Sets the lists, the display text and the default in one go, and brings the Choice up to date.
     * @param iStartups empty, or one entry for each choice; an empty entry is a choice without data
     * @param iDefault empty leaves the default as it is; one that is no choice gives way to the first choice
     * @param iDisplay empty leaves the display text as it is
     * @return S_FALSE when an open configuration bracket holds the update back
     */
    virtual HRESULT Configure(const std::vector<ORXUnicodeString>& iChoices,
                              const std::vector<ORXUnicodeString>& iStartups, const ORXUnicodeString& iDefault,
                              const ORXUnicodeString& iDisplay) = 0;
    /// The same for a Choice without startups; startups that it had are cleared.
    virtual HRESULT Configure(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault,
                              const ORXUnicodeString& iDisplay) = 0;

    /// Writes the value. It is not compared with the choices: one that is none of them gets in, and the update that
    /// follows deals with it.
    virtual HRESULT SetChoice(const ORXUnicodeString& iChoice) = 0;
    /// Leaves `oChoice` alone on failure.
    virtual HRESULT GetChoice(ORXUnicodeString& oChoice) = 0;
    /// Appends the choices, in the order in which they are offered.
    virtual HRESULT GetListOfChoices(std::vector<ORXUnicodeString>& oListChoices) = 0;
    /// The choices in the user's language. @return E_NOTIMPL where nobody translates them, with the list as it was
    virtual HRESULT GetListOfChoicesNLS(std::vector<ORXUnicodeString>& oListChoices) = 0;
    /// The text that a panel shows for the Choice unless it has a better one. Leaves `oDisplay` alone on failure.
    virtual HRESULT GetDefaultDisplay(ORXUnicodeString& oDisplay) = 0;

    /// Brings the Choice up to date with its lists, its value and its default. @return S_FALSE inside a bracket
    virtual HRESULT Update() = 0;

    static const IID& ClassId() noexcept { return IID_VYRICfdChoice; }
    /// Link-time seam. Borrowed, valid until the process ends.
    static ORXMetaClass* MetaObject();
};

using VYRICfdChoice_var = ORXHandle<VYRICfdChoice>;

#endif
