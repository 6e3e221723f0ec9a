#include "ConditionFixture.h"

namespace
{
constexpr char Catalog[] = R"({
    "catalog": "ConditionFixture",
    "types": [
        { "name": "ConditionFixtureInner", "attributes": [ { "name": "inner", "kind": "integer" } ] },
        { "name": "ConditionFixtureObject",
          "attributes": [
              { "name": "real", "kind": "real" },
              { "name": "integer", "kind": "integer" },
              { "name": "string", "kind": "string" },
              { "name": "boolean", "kind": "boolean" },
              { "name": "enumeration", "kind": "enumeration", "values": ["upwind", "central"] },
              { "name": "component", "kind": "component", "type": "ConditionFixtureInner" },
              { "name": "reference", "kind": "reference" },
              { "name": "reals", "kind": "list", "of": "real" },
              { "name": "objects", "kind": "list", "of": "component" },
              { "name": "columns", "kind": "list", "of": "component" } ] } ] })";
} // namespace

void ConditionFixture::SetUp()
{
    ModuleTest::SetUp();
    Declare(Catalog);
    m_object = Create("ConditionFixtureObject", "Object");
}

void ConditionFixture::Write(const char* iAttribute, const char* iValue)
{
    const ORXICkeParm_var parameter = Object().Get(iAttribute, 0).GetParm();
    if (iValue != nullptr)
        parameter->Valuate(ORXUnicodeString(iValue));
    else
        parameter->ValuateFromValue(
            Cursor(Create("ConditionFixtureObject", "Unset")).Get(iAttribute, 0).GetParm()->GetValue());
    ASSERT_EQ(parameter->GetValue()->IsValuated() != 0, iValue != nullptr) << iAttribute;
}

VYRCfdObjectAccess ConditionFixture::ColumnNamed(const char* iAlias, const std::vector<double>& iRows) const
{
    const ORXISpecObject_var column = VYRStandalone::MakeTableColumn();
    VYRStandalone::SetAlias(column, iAlias);
    for (std::size_t row = 0; row < iRows.size(); ++row)
        EXPECT_EQ(Cursor(column).SetDouble(iRows[row], static_cast<int>(row + 1)), S_OK);
    const VYRCfdObjectAccess columns = Object().Get("columns", 0);
    EXPECT_GE(columns.SetList(std::vector<VYRCfdObjectAccess>{Cursor(column)}), 0);
    return columns;
}
