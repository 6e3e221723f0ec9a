/**
 * @file
 * Knowledge types: their kinds, and what they derive from.
 */

#include <ostream>

#include "ContractTest.h"
#include "ORXCkeGlobalFunctions.h"

namespace
{
struct KindOfType
{
    const char* attribute;
    bool isReal;
    bool isInteger;
    bool isBoolean;
    bool isString;
    /// The name of its base, or its own.
    const char* name;
};

std::ostream& operator<<(std::ostream& ioStream, const KindOfType& iKind)
{
    return ioStream << iKind.attribute;
}

class CkeTypes : public ContractTest, public testing::WithParamInterface<KindOfType>
{
protected:
    const ORXICkeType_var m_type = ParmOf(Make("ContractMeasured", "A"), GetParam().attribute)->GetType();
};

TEST_P(CkeTypes, TellTheirKind)
{
    EXPECT_EQ(m_type->IsaReal() != 0, GetParam().isReal);
    EXPECT_EQ(m_type->IsaInteger() != 0, GetParam().isInteger);
    EXPECT_EQ(m_type->IsaBoolean() != 0, GetParam().isBoolean);
    EXPECT_EQ(m_type->IsaString() != 0, GetParam().isString);
}

TEST_P(CkeTypes, AreAKindOfTheTypeOfTheirNameOnly)
{
    for (const char* name : {"Real", "Integer", "Boolean", "Enum", "String"})
        EXPECT_EQ(m_type->IsaKindOf(ORXUnicodeString(name)) != 0, std::string(name) == GetParam().name) << name;
    for (const char* name : {"", "real", "Reals", "NoType"})
        EXPECT_FALSE(m_type->IsaKindOf(ORXUnicodeString(name))) << name;
}

TEST_P(CkeTypes, AreAKindOfThemselvesAndOfTheirBaseType)
{
    const ORXIParmDictionary_var dictionary = ORXCkeGlobalFunctions::GetParmDictionary();
    EXPECT_TRUE(m_type->IsaKindOf(m_type));
    EXPECT_EQ(m_type->IsaKindOf(dictionary->GetRealType()) != 0, GetParam().isReal);
    EXPECT_EQ(m_type->IsaKindOf(dictionary->GetIntegerType()) != 0, GetParam().isInteger);
    EXPECT_EQ(m_type->IsaKindOf(dictionary->GetBooleanType()) != 0, GetParam().isBoolean);
    EXPECT_EQ(m_type->IsaKindOf(dictionary->GetEnumType()) != 0, std::string(GetParam().name) == "Enum");
    EXPECT_FALSE(m_type->IsaKindOf(ORXICkeType_var()));
}

TEST_P(CkeTypes, AreOneForAllObjects)
{
    EXPECT_TRUE(ParmOf(Make("ContractMeasured", "B"), GetParam().attribute)->GetType() == m_type);
    EXPECT_TRUE(ORXICkeType_var::Cast(m_type) == m_type);
}

INSTANTIATE_TEST_SUITE_P(Knowledge, CkeTypes,
                         testing::Values(KindOfType{"ratio", true, false, false, false, "Real"},
                                         KindOfType{"length", true, false, false, false, "Real"},
                                         KindOfType{"pressure", true, false, false, false, "Real"},
                                         KindOfType{"share", true, false, false, false, "Real"},
                                         KindOfType{"count", false, true, false, false, "Integer"},
                                         KindOfType{"on", false, false, true, false, "Boolean"},
                                         KindOfType{"mode", false, false, false, false, "Enum"},
                                         KindOfType{"title", false, false, false, true, "String"}),
                         [](const auto& iInfo) { return std::string(iInfo.param.attribute); });

using DerivedCkeTypes = ContractTest;

TEST_F(DerivedCkeTypes, EachEnumerationIsATypeOfItsOwn)
{
    const ORXISpecObject_var object = Make("ContractPlain", "A");
    const ORXICkeType_var mode = ParmOf(object, "mode")->GetType();
    const ORXICkeType_var pace = ParmOf(object, "pace")->GetType();
    EXPECT_FALSE(mode == pace);
    EXPECT_FALSE(mode->IsaKindOf(pace));
    EXPECT_FALSE(ORXCkeGlobalFunctions::GetParmDictionary()->GetEnumType()->IsaKindOf(mode));
}

TEST_F(DerivedCkeTypes, AQuantityDerivesFromRealAndNotFromAnother)
{
    const ORXISpecObject_var object = Make("ContractMeasured", "A");
    const ORXICkeType_var real = ORXCkeGlobalFunctions::GetParmDictionary()->GetRealType();
    const ORXICkeType_var length = ParmOf(object, "length")->GetType();
    EXPECT_TRUE(length->IsaKindOf(real));
    EXPECT_FALSE(real->IsaKindOf(length));
    EXPECT_FALSE(length->IsaKindOf(ParmOf(object, "pressure")->GetType()));
    EXPECT_TRUE(length->IsaKindOf(ParmOf(object, "span")->GetType())) << "millimetres and kilometres measure the same";
    EXPECT_FALSE(ParmOf(object, "ratio")->GetType()->IsaKindOf(length));
}
} // namespace
