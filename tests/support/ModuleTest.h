#ifndef ModuleTest_H
#define ModuleTest_H

/**
 * @file
 * What tests of the module share: a fixture with a model, and whole comparison of what was reported.
 *
 * @code
 *     class CursorTest : public ModuleTest
 *     {
 *     };
 *
 *     TEST_F(CursorTest, GetString_OnAnObjectCursor_ReportsTheMissingKey)
 *     {
 *         Declare(R"({ "catalog": "CursorTest", "types": [ { "name": "CursorTestPart" } ] })");
 *         const VYRCfdObjectAccess cursor = Cursor(Create("CursorTestPart", "Part.1"));
 *         ORXUnicodeString value;
 *         EXPECT_EQ(cursor.GetString(value), E_FAIL);
 *         EXPECT_EQ(Reported(), (Records{Assertion("_spKey", "VYRCfdObjectAccess::GetString")}));
 *     }
 * @endcode
 */

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "VYRCfdObjectAccess.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneModel.h"

/// A report without its place in the source, which no contract fixes.
struct Record
{
    VYRStandalone::Report::Kind kind;
    std::string text;
    std::string function;
    HRESULT status;

    bool operator==(const Record& iOther) const = default;
};

using Records = std::vector<Record>;

Record Assertion(std::string iText, std::string iFunction);
Record Error(std::string iText, std::string iFunction);
Record FailedCall(std::string iText, std::string iFunction, HRESULT iStatus = E_FAIL);

/// Takes what was reported since the last call, oldest first. Each report is held to name a source file of the module
/// and a line of it.
Records Reported();

/// Declares a catalog. Catalogs outlive their test: give names that no other test program of the same process uses, and
/// declare the same text in every test that needs it.
void Declare(std::string_view iCatalog);

/// Makes calls of a host operation fail, from the `iCall`-th on `iTimes` of them, 0 for all; see VYRStandalone::Fault.
void MakeFail(const char* iOperation, const char* iSubject, HRESULT iStatus = E_FAIL, int iCall = 1, int iTimes = 0);

VYRCfdObjectAccess Cursor(const ORXISpecObject_var& iObject);
ORXISpecAttrAccess_var AccessOf(const ORXISpecObject_var& iObject);

/// Starts with an empty model, no reports, no faults and error status 0. A test that leaves reports behind at which it
/// has not looked fails, so "nothing was reported" needs no expectation of its own.
class ModuleTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    ORXISpecObject_var Create(const char* iType, const char* iName);

    VYRStandalone::Model m_model;
};

/// For the messages of failed expectations.
void PrintTo(const Record& iRecord, std::ostream* ioStream);
void PrintTo(const ORXUnicodeString& iText, std::ostream* ioStream);

#endif
