/**
 * @file
 * Table columns: components of rows without attributes.
 */

#include "HostTypes.h"
#include "ORXISimBCDataTableColumn.h"

namespace
{
class Columns : public HostTest
{
protected:
    Columns() : m_object(VYRStandalone::MakeTableColumn()), m_column(m_object) {}

    std::vector<double> Rows() const
    {
        ORXRawColldouble rows(0);
        m_column->GetValues(rows);
        std::vector<double> values;
        for (int row = 1; row <= rows.Size(); ++row)
            values.push_back(rows[row]);
        return values;
    }

    const ORXISpecObject_var m_object;
    const ORXISimBCDataTableColumn_var m_column;
};

TEST_F(Columns, AreObjectsWithoutAttributes)
{
    EXPECT_TRUE(m_column == m_object);
    EXPECT_FALSE(!ORXISpecAttrAccess_var(m_object));
    EXPECT_TRUE(!KeyOf(m_object, "ratio"));
    EXPECT_TRUE(VYRStandalone::Attributes(m_object).empty());
    EXPECT_TRUE(!ORXISimBCDataTableColumn_var(Make("HostPlain", "P")));
    const ORXISpecObject_var owner = Make("HostPlain", "O");
    EXPECT_EQ(Insert(owner, "parts", m_object, 1), S_OK);
    EXPECT_TRUE(ORXISimBCDataTableColumn_var(ObjectOf(owner, "parts", 1)) == m_column);
}

TEST_F(Columns, RowZero_WritesTheFirstRow)
{
    double value = -1.0;
    EXPECT_EQ(m_column->GetValue(0, value), E_FAIL);
    EXPECT_EQ(m_column->GetValue(1, value), E_FAIL);
    EXPECT_EQ(value, -1.0);
    EXPECT_EQ(m_column->SetValue(0, 1.5), S_OK);
    EXPECT_EQ(m_column->GetValue(0, value), S_OK);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(m_column->SetValue(0, 2.5), S_OK);
    EXPECT_EQ(Rows(), std::vector<double>{2.5});
}

TEST_F(Columns, RowBehindTheLast_Appends)
{
    EXPECT_EQ(m_column->SetValue(2, 9.0), E_FAIL);
    EXPECT_EQ(m_column->SetValue(-1, 9.0), E_FAIL);
    EXPECT_EQ(m_column->SetValue(1, 1.0), S_OK);
    EXPECT_EQ(m_column->SetValue(2, 2.0), S_OK);
    EXPECT_EQ(m_column->SetValue(4, 9.0), E_FAIL);
    EXPECT_EQ(m_column->SetValue(1, 3.0), S_OK);
    EXPECT_EQ(Rows(), (std::vector<double>{3.0, 2.0}));
    EXPECT_EQ(m_column->GetRowCount(), 2);
}
} // namespace
