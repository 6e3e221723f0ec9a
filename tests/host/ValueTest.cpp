/**
 * @file
 * How the stand-alone host keeps values and lists them.
 */

#include <memory>

#include "HostTypes.h"

namespace
{
using Values = HostTest;

TEST_F(Values, WriteWhileNobodyHoldsTheValue_KeepsItsPlace)
{
    const ORXICkeParm_var parm = ParmOf(Make("HostPlain", "A"), "ratio");
    const ORXIValue* const before = parm->GetValue().Pointer();
    parm->Valuate(1.0);
    EXPECT_EQ(parm->GetValue().Pointer(), before);
}

TEST_F(Values, ListObjects_IsNeverNull)
{
    const ORXISpecObject_var object = Make("HostPlain", "A");
    for (const char* name : {"parts", "names", "ref", "title"})
    {
        const std::unique_ptr<ORXListValORXBaseUnknown_var> empty(AccessOf(object)->ListObjects(KeyOf(object, name)));
        ASSERT_NE(empty, nullptr) << name;
        EXPECT_EQ(empty->Size(), 0) << name;
    }
}
} // namespace
