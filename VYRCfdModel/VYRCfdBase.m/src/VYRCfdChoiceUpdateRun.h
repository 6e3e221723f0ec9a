#ifndef VYRCfdChoiceUpdateRun_H
#define VYRCfdChoiceUpdateRun_H

/**
 * @file
 * One run of the update of a Choice.
 */

#include <vector>

#include "ORXICkeManipulator.h"
#include "ORXListValORXUnicodeString.h"
#include "VYRCfdChoiceInstanceAdp.h"
#include "VYRIMpaDefaultManagementProtected.h"

/**
 * Holds what a run has read. Runs nest, since the run's own writes start others; afterwards it goes on with what stands
 * here and reads none of it again. Everything is reported under the name of the update.
 *
 * All that runs share is the Choice's mark of a changed value.
 */
class VYRCfdBaseLocal VYRCfdChoiceInstanceAdp::UpdateRun
{
public:
    explicit UpdateRun(VYRCfdChoiceInstanceAdp& ioChoice);

    HRESULT Go(ORXUnicodeString& iDefault);

private:
    HRESULT ReadLists();
    HRESULT SettleDefaultText(const ORXUnicodeString& iDefault);
    HRESULT FindManipulator();
    HRESULT WalkChoices();
    void PublishAllowedValues();
    void SettleDefault(const ORXUnicodeString& iDefault);
    /// @param oIsGivenUp the value is no choice and is to stay so: the run ends here
    HRESULT RepairValue(bool& oIsGivenUp);
    HRESULT ApplyRecordedConfigurations();
    HRESULT Complete();
    void TellSubscribers();

    // Reports show these calls as the Choice's own.
    HRESULT UpdateDataForStartup(const ORXUnicodeString& iStartup, bool& ioDataChange);
    HRESULT CompleteUpdate(bool iWasValueChange, bool iDataChange);

    VYRCfdChoiceInstanceAdp& m_choice;

    // Named as the reports show them.
    VYRCfdObjectAccess access;
    ORXUnicodeString value;
    std::vector<ORXUnicodeString> choices;
    std::vector<ORXUnicodeString> startups;
    VYRIMpaDefaultManagementProtected_var spDefMgmt;
    ORXICkeManipulator_var manip;
    bool dataChange = false;

    ORXUnicodeString m_defaultText;
    bool m_listsDiffer = false;
    bool m_isValueFound = false;
    bool m_isDefaultFound = false;
};

#endif
