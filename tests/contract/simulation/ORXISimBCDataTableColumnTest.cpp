/**
 * @file
 * Table columns: components of rows without attributes.
 */

#include <cmath>
#include <limits>

#include "ContractTest.h"
#include "ORXISimBCDataTableColumn.h"

namespace
{
class Columns : public ContractTest
{
protected:
    Columns() : m_object(HostUnderTest::MakeColumn()), m_column(m_object) {}

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
    EXPECT_EQ(m_column->GetImpl(0), m_object->GetImpl(0));
    EXPECT_FALSE(!ORXISpecAttrAccess_var(m_object));
    EXPECT_TRUE(!KeyOf(m_object, "ratio"));
    EXPECT_TRUE(!ORXISimBCDataTableColumn_var(Make("ContractPlain", "P")));
    EXPECT_FALSE(m_object == HostUnderTest::MakeColumn());
}

TEST_F(Columns, StandUnderAnOwnerAndAreReferredToAsEveryObject)
{
    const ORXISpecObject_var owner = Make("ContractPlain", "O");
    EXPECT_EQ(Insert(owner, "parts", m_object, 1), S_OK);
    EXPECT_EQ(Set(owner, "ref", m_object), S_OK);
    EXPECT_TRUE(OwnerOf(m_object) == owner);
    EXPECT_TRUE(m_object->GetContainer() == owner->GetContainer());
    EXPECT_TRUE(ORXISimBCDataTableColumn_var(ObjectOf(owner, "parts", 1)) == m_column);
    EXPECT_TRUE(ObjectOf(owner, "ref") == m_column);
    m_column->SetValue(1, 2.5);
    double value = 0.0;
    EXPECT_EQ(ORXISimBCDataTableColumn_var(ObjectOf(owner, "parts", 1))->GetValue(1, value), S_OK);
    EXPECT_EQ(value, 2.5);
}

TEST_F(Columns, HoldTheirObject)
{
    const unsigned int before = CountOf(m_object);
    {
        const ORXISimBCDataTableColumn_var again = m_object;
        EXPECT_EQ(CountOf(m_object), before + 1);
        const ORXISimBCDataTableColumn_var copy = again;
        EXPECT_EQ(CountOf(m_object), before + 2);
    }
    EXPECT_EQ(CountOf(m_object), before);
}

TEST_F(Columns, Empty_HaveNoRows)
{
    EXPECT_EQ(m_column->GetRowCount(), 0);
    EXPECT_EQ(Rows(), std::vector<double>{});
    double value = -1.0;
    for (const int row : {-1, 0, 1, 2})
        EXPECT_EQ(m_column->GetValue(row, value), E_FAIL) << row;
    EXPECT_EQ(value, -1.0) << "left alone";
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

TEST_F(Columns, GetValue_ReadsTheFirstAndTheLastAndFailsBehind)
{
    for (int row = 1; row <= 3; ++row)
        EXPECT_EQ(m_column->SetValue(row, row * 1.5), S_OK);
    double value = 0.0;
    EXPECT_EQ(m_column->GetValue(1, value), S_OK);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(m_column->GetValue(3, value), S_OK);
    EXPECT_EQ(value, 4.5);
    EXPECT_EQ(m_column->GetValue(0, value), S_OK);
    EXPECT_EQ(value, 1.5) << "the column as a single value";
    for (const int row : {-1, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(m_column->GetValue(row, value), E_FAIL) << row;
        EXPECT_EQ(m_column->SetValue(row == 4 ? 5 : row, 9.0), E_FAIL) << row;
    }
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(m_column->GetRowCount(), 3);
}

TEST_F(Columns, GetValues_AppendsToWhatTheCollectionHolds)
{
    m_column->SetValue(0, 1.5);
    m_column->SetValue(2, 2.5);
    ORXRawColldouble rows(1);
    rows[1] = 9.0;
    m_column->GetValues(rows);
    ASSERT_EQ(rows.Size(), 3);
    EXPECT_EQ(rows[1], 9.0);
    EXPECT_EQ(rows[2], 1.5);
    EXPECT_EQ(rows[3], 2.5);
}

TEST_F(Columns, HoldEveryReal)
{
    const double values[] = {-0.0, 5e-324, std::numeric_limits<double>::max(),
                             -std::numeric_limits<double>::infinity()};
    for (int row = 1; row <= 4; ++row)
        EXPECT_EQ(m_column->SetValue(row, values[row - 1]), S_OK);
    EXPECT_EQ(Rows(), std::vector<double>(std::begin(values), std::end(values)));
    EXPECT_TRUE(std::signbit(Rows().front()));
}
} // namespace
