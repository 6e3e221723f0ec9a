/**
 * @file
 * What the operations answer to an empty name.
 */

#include <functional>

#include "FlowTest.h"
#include "VYRStandaloneInstruments.h"

namespace
{
using Management = VYRIMpaDefaultManagementProtected_var;

struct EmptyName
{
    const char* name;
    std::function<HRESULT(const Management&)> call;
    HRESULT status;
};

const ORXUnicodeString empty;

const EmptyName emptyNames[] = {
    {"IsSet",
     [](const Management& management) {
         unsigned char out = 7;
         const HRESULT status = management->IsSet(empty, out);
         EXPECT_EQ(out, 7) << "the name is looked at first";
         return status;
     },
     E_FAIL},
    {"Unset", [](const Management& management) { return management->Unset(empty); }, S_FALSE},
    {"GetDefault",
     [](const Management& management) {
         ORXICkeInst_var value;
         const HRESULT status = management->GetDefault(empty, value);
         EXPECT_EQ(TextOf(value), "(null)");
         return status;
     },
     E_FAIL},
    {"SetIsSet", [](const Management& management) { return management->SetIsSet(empty, ORXTrue); }, E_FAIL},
    {"SetCustomDefaultText",
     [](const Management& management) {
         ORXUnicodeString text("7");
         return management->SetCustomDefault(empty, text);
     },
     E_FAIL},
    {"SetCustomDefaultValue",
     [](const Management& management) {
         ORXICkeInst_var value;
         return management->SetCustomDefault(empty, value);
     },
     E_FAIL},
    {"RemoveCustomDefault", [](const Management& management) { return management->RemoveCustomDefault(empty); },
     E_FAIL},
    {"HasCustomDefault",
     [](const Management& management) {
         unsigned char out = 7;
         const HRESULT status = management->HasCustomDefault(empty, out);
         EXPECT_EQ(out, 7);
         return status;
     },
     E_FAIL},
    {"HasAuto",
     [](const Management& management) {
         unsigned char out = 7;
         const HRESULT status = management->HasAuto(empty, out);
         EXPECT_EQ(out, 7);
         return status;
     },
     E_FAIL},
    {"GetIsAuto",
     [](const Management& management) {
         unsigned char out = 7;
         const HRESULT status = management->GetIsAuto(empty, out);
         EXPECT_EQ(out, 7);
         return status;
     },
     E_FAIL},
    {"SetIsAuto", [](const Management& management) { return management->SetIsAuto(empty, ORXTrue); }, E_FAIL},
};

class EmptyNameTest : public FlowTest, public testing::WithParamInterface<EmptyName>
{
};

TEST_P(EmptyNameTest, EmptyName_ReportsAndChangesNothing)
{
    const Management management = DefaultManagement();
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(GetParam().call(management), GetParam().status);
    EXPECT_EQ(calls.Take(), Lines{});
}

INSTANTIATE_TEST_SUITE_P(Operations, EmptyNameTest, testing::ValuesIn(emptyNames),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
