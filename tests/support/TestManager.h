#ifndef TestManager_H
#define TestManager_H

/**
 * @file
 * A manager class of the tests, which shows what it is told and can be told to answer something else.
 */

#include <functional>

#include "ORXISpecObject.h"
#include "VYRCfdChoiceMgrAdp.h"
#include "VYRCfdExtension.h"

/// What managers do instead of what the base does; an empty function is the base's.
struct ManagerHooks
{
    std::function<HRESULT(const std::vector<ORXUnicodeString>& iChoices)> configure;
    std::function<HRESULT(const std::set<ORXUnicodeString>& iProhibited)> prohibit;
};

/**
 * Extends "ChoiceTestHooked" and what derives from it, besides TestChoice. Two operations add a line to every
 * VYRStandalone::CallRecorder: "manage [alpha, beta] alpha Model" (choices, default, display text) and
 * "prohibit [alpha, beta]".
 */
class TestManager final : public VYRCfdExtension<TestManager, VYRCfdChoiceMgrAdp>
{
public:
    static constexpr const char* ClassName = "TestManager";
    static constexpr const char* LateType = "ChoiceTestHooked";
    static constexpr const char* Framework = "Test";
    static ORXMetaClass* BaseMeta();

    /// Enters the class into the dictionary, for the life of the process, and takes the hooks away.
    static void Register();

    static ManagerHooks& Hooks();

    HRESULT ConfigureChoiceMgr(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault,
                               const ORXUnicodeString& iDisplay) override;
    HRESULT ProhibitChoices(const std::set<ORXUnicodeString>& iProhibited) override;
};

/// The manager of an object; null when it has none.
VYRICfdChoiceMgr_var ManagerOf(const ORXISpecObject_var& iObject);

#endif
