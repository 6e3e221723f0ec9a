#include "VYRCfdChoiceMgrAdp.h"

#include <algorithm>

#include "ORXKeySetVYRCfdBase.h"
#include "VYRCfdChecks.h"
#include "VYRCfdConfigurableTransaction.h"
#include "VYRCfdObjectAccess.h"
#include "VYRICfdChoice.h"
#include "VYRIMpaDefaultManagementProtected.h"

namespace
{
using Texts = std::vector<ORXUnicodeString>;

bool Contains(const Texts& iTexts, const ORXUnicodeString& iText)
{
    return std::find(iTexts.begin(), iTexts.end(), iText) != iTexts.end();
}

/// Finds the start-up of a feature, which holds the declared lists. Reports under the operation's name.
HRESULT FindStartup(const char* iFunction, ORXBaseUnknown* iFeature, ORXISpecObject_var& spStartupSpec)
{
    const ORXISpecObject_var spSpec = ORXISpecObject_var::Cast(iFeature);
    VYRCFD_ASSERT_FOR(iFunction, spSpec);
    spStartupSpec = ORXISpecObject_var::Adopt(spSpec->GetStartup());
    VYRCFD_ASSERT_FOR(iFunction, spStartupSpec);
    return S_OK;
}

/// The choices of a Choice and what starts with each, in the order of a list of choices that some are taken from.
struct Selection
{
    Texts choices;
    Texts startups;

    /// @param iStartups empty, or one for each of `iChoices`
    template <class IsKept> Selection(const Texts& iChoices, const Texts& iStartups, const IsKept& iIsKept)
    {
        for (std::size_t i = 0; i < iChoices.size(); ++i)
        {
            if (!iIsKept(iChoices[i]))
                continue;
            choices.push_back(iChoices[i]);
            if (!iStartups.empty())
                startups.push_back(iStartups[i]);
        }
    }
};
} // namespace

VYRCfdChoiceMgrAdp::VYRCfdChoiceMgrAdp() = default;

VYRCfdChoiceMgrAdp::~VYRCfdChoiceMgrAdp() = default;

// clang-format off

HRESULT VYRCfdChoiceMgrAdp::ConfigureChoiceMgr(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault, const ORXUnicodeString& iDisplay)
{
    VYRCFD_ENTER_RESET(15);
    VYRCFD_ASSERT(iChoices.size() > 0);
    ORXISpecObject_var spStartupSpec;
    VYRCFD_PASS(FindStartup(VYRCFD_FUNCTION, GetImpl(0), spStartupSpec));
    const VYRCfdObjectAccess startup{ORXBaseUnknown_var(spStartupSpec)};
    Texts startupChoices;
    startup[VYRCFDBASE(Choice, choices)].GetStrings(startupChoices);
    Texts startupStartups;
    startup[VYRCFDBASE(Choice, Startups)].GetStrings(startupStartups);
    if (!startupStartups.empty())
        VYRCFD_ASSERT(startupChoices.size() == startupStartups.size());

    bool defaultFound = false;
    Texts startups;
    for (const ORXUnicodeString& choice : iChoices)
    {
        if (choice == iDefault)
            defaultFound = true;
        const auto declared = std::find(startupChoices.begin(), startupChoices.end(), choice);
        if (declared == startupChoices.end())
            VYRCFD_FAIL("Invalid choice %s", choice.CastToCharPtr());
        if (!startupStartups.empty())
            startups.push_back(startupStartups[static_cast<std::size_t>(declared - startupChoices.begin())]);
    }
    VYRCFD_ASSERT(defaultFound);
    const VYRICfdChoice_var spChoice = VYRICfdChoice_var::Cast(GetImpl(0));
    VYRCFD_ASSERT(spChoice);
    return spChoice->Configure(iChoices, startups, iDefault, iDisplay);
}

HRESULT VYRCfdChoiceMgrAdp::Reset(unsigned char iKeepValue)
{
    VYRCFD_ENTER_RESET(15);
    // It is used for nothing else: a feature without default management is not reset.
    const VYRIMpaDefaultManagementProtected_var spDefMgmt = VYRIMpaDefaultManagementProtected_var::Cast(GetImpl(0));
    VYRCFD_ASSERT(spDefMgmt != NULL_var);
    ORXISpecObject_var spStartupSpec;
    VYRCFD_PASS(FindStartup(VYRCFD_FUNCTION, GetImpl(0), spStartupSpec));
    const VYRCfdObjectAccess startup{ORXBaseUnknown_var(spStartupSpec)};
    const VYRCfdObjectAccess access(ORXBaseUnknown_var::Share(GetImpl(0)));
    Texts startupChoices;
    startup[VYRCFDBASE(Choice, choices)].GetStrings(startupChoices);
    Texts startupStartups;
    startup[VYRCFDBASE(Choice, Startups)].GetStrings(startupStartups);
    ORXUnicodeString defaultValue;
    (iKeepValue != ORXFalse ? access : startup)[VYRCFDBASE(Choice, value)].GetString(defaultValue);
    ORXUnicodeString display;
    startup[VYRCFDBASE(Choice, display)].GetString(display);
    if (!startupStartups.empty())
        VYRCFD_ASSERT(startupChoices.size() == startupStartups.size());
    const VYRICfdChoice_var spChoice = VYRICfdChoice_var::Cast(GetImpl(0));
    VYRCFD_ASSERT(spChoice);
    return spChoice->Configure(startupChoices, startupStartups, defaultValue, display);
}

HRESULT VYRCfdChoiceMgrAdp::GetAllChoices(std::vector<ORXUnicodeString>& oChoices, ORXUnicodeString& oDefaultChoice)
{
    VYRCFD_ENTER_RESET(15);
    ORXISpecObject_var spStartupSpec;
    VYRCFD_PASS(FindStartup(VYRCFD_FUNCTION, GetImpl(0), spStartupSpec));
    const VYRCfdObjectAccess startup{ORXBaseUnknown_var(spStartupSpec)};
    VYRCFD_CHECK(startup[VYRCFDBASE(Choice, choices)].GetStrings(oChoices));
    VYRCFD_CHECK(startup[VYRCFDBASE(Choice, value)].GetString(oDefaultChoice));
    return S_OK;
}

HRESULT VYRCfdChoiceMgrAdp::ProhibitChoice(const ORXUnicodeString& iChoice)
{
    VYRCFD_ENTER_RESET(15);
    const std::set<ORXUnicodeString> prohibited{iChoice};
    return ProhibitChoices(prohibited);
}

HRESULT VYRCfdChoiceMgrAdp::ProhibitChoices(const std::set<ORXUnicodeString>& iProhibited)
{
    VYRCFD_ENTER_RESET(15);
    const VYRCfdObjectAccess access(ORXBaseUnknown_var::Share(GetImpl(0)));
    Texts currentChoices;
    access[VYRCFDBASE(Choice, choices)].GetStrings(currentChoices);
    Texts currentStartups;
    access[VYRCFDBASE(Choice, Startups)].GetStrings(currentStartups);
    if (!currentStartups.empty())
        VYRCFD_ASSERT(currentChoices.size() == currentStartups.size());

    const Selection kept(currentChoices, currentStartups,
                         [&](const ORXUnicodeString& iChoice) { return !iProhibited.contains(iChoice); });
    if (kept.choices == currentChoices)
        return S_OK;
    const VYRCfdConfigurableTransaction transaction(VYRICfdConfigurable_var::Cast(GetImpl(0)));
    access[VYRCFDBASE(Choice, choices)].SetStrings(kept.choices);
    access[VYRCFDBASE(Choice, Startups)].SetStrings(kept.startups);
    return S_OK;
}

HRESULT VYRCfdChoiceMgrAdp::AddChoices(std::set<ORXUnicodeString>& iAdded)
{
    VYRCFD_ENTER_RESET(15);
    ORXISpecObject_var spStartupSpec;
    VYRCFD_PASS(FindStartup(VYRCFD_FUNCTION, GetImpl(0), spStartupSpec));
    const VYRCfdObjectAccess startup{ORXBaseUnknown_var(spStartupSpec)};
    const VYRCfdObjectAccess access(ORXBaseUnknown_var::Share(GetImpl(0)));
    Texts originalChoices;
    startup[VYRCFDBASE(Choice, choices)].GetStrings(originalChoices);
    Texts originalStartups;
    startup[VYRCFDBASE(Choice, Startups)].GetStrings(originalStartups);
    if (!originalStartups.empty())
        VYRCFD_ASSERT(originalChoices.size() == originalStartups.size());
    Texts currentChoices;
    access[VYRCFDBASE(Choice, choices)].GetStrings(currentChoices);
    Texts currentStartups;
    access[VYRCFDBASE(Choice, Startups)].GetStrings(currentStartups);

    const Selection kept(originalChoices, originalStartups, [&](const ORXUnicodeString& iChoice)
                         { return Contains(currentChoices, iChoice) || iAdded.contains(iChoice); });
    if (kept.choices == currentChoices)
        return S_OK;
    const VYRCfdConfigurableTransaction transaction(VYRICfdConfigurable_var::Cast(GetImpl(0)));
    access[VYRCFDBASE(Choice, choices)].SetStrings(kept.choices);
    // The key is that of `choices`, here as well: the startups' names take the place of the choices. It looks like a
    // slip, and is kept: callers know it so.
    if (!originalStartups.empty())
        access[VYRCFDBASE(Choice, choices)].SetStrings(kept.startups);
    return S_OK;
}
// clang-format on
