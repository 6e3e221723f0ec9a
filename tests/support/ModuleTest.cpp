#include "ModuleTest.h"

#include <ostream>
#include <utility>

#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneInstruments.h"

using Kind = VYRStandalone::Report::Kind;

Record Assertion(std::string iText, std::string iFunction)
{
    return {Kind::Assertion, std::move(iText), std::move(iFunction), E_FAIL};
}

Record Error(std::string iText, std::string iFunction)
{
    return {Kind::Error, std::move(iText), std::move(iFunction), E_FAIL};
}

Record FailedCall(std::string iText, std::string iFunction, HRESULT iStatus)
{
    return {Kind::FailedCall, std::move(iText), std::move(iFunction), iStatus};
}

Records Reported()
{
    Records records;
    for (VYRStandalone::Report& report : VYRStandalone::TakeReports())
    {
        EXPECT_TRUE(report.file.starts_with("VYRCfdModel/VYRCfdBase.m/src/VYRE") ||
                    report.file.starts_with("VYRCfdModel/VYRCfdBase.m/src/VYRCfd"))
            << report.file;
        EXPECT_GT(report.line, 0) << report.text;
        records.push_back({report.kind, std::move(report.text), std::move(report.function), report.status});
    }
    return records;
}

void Declare(std::string_view iCatalog)
{
    VYRStandalone::DeclareCatalog(iCatalog, "test");
}

void MakeFail(const char* iOperation, const char* iSubject, HRESULT iStatus, int iCall, int iTimes)
{
    VYRStandalone::Fault fault;
    fault.operation = iOperation;
    fault.subject = iSubject;
    fault.status = iStatus;
    fault.call = iCall;
    fault.times = iTimes;
    VYRStandalone::PlantFault(fault);
}

VYRCfdObjectAccess Cursor(const ORXISpecObject_var& iObject)
{
    return VYRCfdObjectAccess(ORXBaseUnknown_var(iObject));
}

ORXISpecAttrAccess_var AccessOf(const ORXISpecObject_var& iObject)
{
    return iObject;
}

void ModuleTest::SetUp()
{
    VYRStandalone::ClearFaults();
    VYRStandalone::TakeReports();
    VYRStandalone::SetErrorStatus(0);
}

void ModuleTest::TearDown()
{
    // Faults first: what a test planted must not meet the end of its model.
    VYRStandalone::ClearFaults();
    EXPECT_EQ(Reported(), Records{}) << "reported, and not looked at";
}

ORXISpecObject_var ModuleTest::Create(const char* iType, const char* iName)
{
    return m_model.Create(iType, iName);
}

void PrintTo(const Record& iRecord, std::ostream* ioStream)
{
    static constexpr const char* kinds[] = {"assertion", "error", "failed call"};
    *ioStream << kinds[static_cast<int>(iRecord.kind)] << " \"" << iRecord.text << "\" of " << iRecord.function
              << ", status " << std::hex << "0x" << static_cast<unsigned int>(iRecord.status) << std::dec;
}

void PrintTo(const ORXUnicodeString& iText, std::ostream* ioStream)
{
    *ioStream << '"' << iText.CastToCharPtr() << '"';
}
