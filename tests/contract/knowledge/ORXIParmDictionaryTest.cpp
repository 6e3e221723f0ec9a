/**
 * @file
 * The base types of all parameters.
 */

#include "ContractTest.h"
#include "ORXCkeGlobalFunctions.h"

namespace
{
class ParmDictionary : public ContractTest
{
protected:
    const ORXIParmDictionary_var m_dictionary = ORXCkeGlobalFunctions::GetParmDictionary();
};

TEST_F(ParmDictionary, TypesAreOfTheirKind)
{
    EXPECT_TRUE(m_dictionary->GetRealType()->IsaReal());
    EXPECT_TRUE(m_dictionary->GetIntegerType()->IsaInteger());
    EXPECT_TRUE(m_dictionary->GetBooleanType()->IsaBoolean());
    EXPECT_TRUE(m_dictionary->GetEnumType()->IsaKindOf(m_dictionary->GetEnumType()));
    EXPECT_FALSE(m_dictionary->GetEnumType()->IsaInteger());
}

TEST_F(ParmDictionary, TypesAreOneEachAndNoneDerivesFromAnother)
{
    const ORXICkeType_var types[] = {m_dictionary->GetRealType(), m_dictionary->GetIntegerType(),
                                     m_dictionary->GetBooleanType(), m_dictionary->GetEnumType()};
    const ORXICkeType_var again[] = {m_dictionary->GetRealType(), m_dictionary->GetIntegerType(),
                                     m_dictionary->GetBooleanType(), m_dictionary->GetEnumType()};
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
        {
            EXPECT_EQ(types[i] == again[j], i == j) << i << ' ' << j;
            EXPECT_EQ(types[i]->IsaKindOf(again[j]) != 0, i == j) << i << ' ' << j;
        }
}

TEST_F(ParmDictionary, TypesOutliveEveryModelAndAreNotCounted)
{
    const int before = HostUnderTest::LiveComponents();
    ORXICkeType* const borrowed = m_dictionary->GetRealType().Pointer();
    EXPECT_EQ(HostUnderTest::LiveComponents(), before);
    EXPECT_TRUE(borrowed->IsaReal());
}
} // namespace
