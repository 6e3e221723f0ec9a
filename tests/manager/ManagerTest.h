#ifndef ManagerTest_H
#define ManagerTest_H

/**
 * @file
 * What tests of managers share.
 */

#include <set>

#include "ChoiceTest.h"
#include "TestManager.h"

/// Names under which the operations report.
inline constexpr const char* Manage = "VYRCfdChoiceMgrAdp::ConfigureChoiceMgr";
inline constexpr const char* ResetChoices = "VYRCfdChoiceMgrAdp::Reset";
inline constexpr const char* GetAll = "VYRCfdChoiceMgrAdp::GetAllChoices";
inline constexpr const char* Prohibit = "VYRCfdChoiceMgrAdp::ProhibitChoices";
inline constexpr const char* Add = "VYRCfdChoiceMgrAdp::AddChoices";

/// The report of an update that sees lists of different lengths, as it does between the writes of the two.
Record UnequalLists();

/**
 * Has one Choice with a manager, "Choice.1": choices alpha, beta and gamma with the three types, of which alpha is the
 * declared value, and the display text "Three". It has been updated.
 */
class ManagerTest : public ChoiceTest
{
protected:
    void SetUp() override;

    /// Takes another Choice of these declarations in the place of the one that there is.
    void Take(const ChoiceDeclaration& iDeclaration);

    HRESULT Configure(const Lines& iChoices, const char* iDefault, const char* iDisplay = "");
    HRESULT ProhibitAll(const std::set<ORXUnicodeString>& iChoices);
    HRESULT AddAll(std::set<ORXUnicodeString> iChoices);

    /// Where the start-up of the Choice stands, as planted faults name it.
    std::string StartupPath() const;

    ORXISpecObject_var m_choice;
    VYRICfdChoiceMgr_var m_manager;
};

/// What the Choice of `ManagerTest` declares.
const ChoiceDeclaration& Declared();

/// Makes all casts of an object to an interface fail.
void MakeCastFail(const char* iInterface, const std::string& iObject = "Choice.1");

/// Of recorded lines the writes, and what `ChoiceRecorder::TakeSteps` gives.
Lines WritesAndSteps(const Lines& iLines);

#endif
