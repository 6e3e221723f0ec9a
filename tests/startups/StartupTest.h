#ifndef StartupTest_H
#define StartupTest_H

/**
 * @file
 * What tests of the data objects of Choices share.
 */

#include "ChoiceTest.h"

/// Name under which the operation reports.
inline constexpr const char* UpdateData = "VYRCfdChoiceInstanceAdp::UpdateDataForStartup";

/// What became of one call.
struct Outcome
{
    HRESULT status;
    bool dataChange;

    bool operator==(const Outcome& iOther) const = default;
};

/// Has one Choice, "Choice.1", without choices of its own: the operation is called by itself, for any startup.
class StartupTest : public ChoiceTest
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        m_choice = Create("ChoiceTestHooked", "Choice.1");
    }

    /// Makes the data object match a startup.
    Outcome UpdateTo(const char* iStartup, bool iDataChange = false)
    {
        bool dataChange = iDataChange;
        const HRESULT status = TestChoice::Of(m_choice).BaseUpdateDataForStartup(iStartup, dataChange);
        return {status, dataChange};
    }

    /// Gives the Choice a data object, called "Former".
    ORXISpecObject_var GiveData(const char* iType)
    {
        const ORXISpecObject_var former = Create(iType, "Former");
        EXPECT_EQ(WriteObject(m_choice, "Data", former), S_OK);
        return former;
    }

    ORXISpecObject_var m_choice;
};

inline void PrintTo(const Outcome& iOutcome, std::ostream* ioStream)
{
    *ioStream << "status " << iOutcome.status << (iOutcome.dataChange ? ", data changed" : ", data not changed");
}

#endif
