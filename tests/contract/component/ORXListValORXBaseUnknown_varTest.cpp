/**
 * @file
 * Lists of component handles.
 */

#include "ORXListValORXBaseUnknown_var.h"
#include "ContractTest.h"

namespace
{
class ListsOfHandles : public ContractTest
{
protected:
    static std::string Names(const ORXListValORXBaseUnknown_var& iList)
    {
        std::string names;
        for (int i = 1; i <= iList.Size(); ++i)
            names += !iList[i] ? "-" : Narrow(ORXISpecObject_var(iList[i])->GetName());
        return names;
    }

    const ORXISpecObject_var m_a = Make("ContractLeaf", "A");
    const ORXISpecObject_var m_b = Make("ContractLeaf", "B");
};

TEST_F(ListsOfHandles, PositionsCountFromOne)
{
    ORXListValORXBaseUnknown_var list;
    EXPECT_EQ(list.Size(), 0);
    list.Append(m_a);
    list.Append(NULL_var);
    list.Append(m_b);
    EXPECT_EQ(Names(list), "A-B");
    list[2] = m_b;
    EXPECT_EQ(Names(list), "ABB");
    list[2] = NULL_var;
    list.RemovePosition(2);
    EXPECT_EQ(Names(list), "AB");
    list.RemovePosition(2);
    EXPECT_EQ(Names(list), "A");
    list.RemovePosition(1);
    EXPECT_EQ(list.Size(), 0);
}

TEST_F(ListsOfHandles, InsertAt_MovesUpWhatStoodThere)
{
    ORXListValORXBaseUnknown_var list;
    list.InsertAt(1, m_a);
    list.InsertAt(1, m_b);
    list.InsertAt(3, NULL_var);
    list.InsertAt(2, m_b);
    EXPECT_EQ(Names(list), "BBA-");
}

TEST_F(ListsOfHandles, HoldTheirEntries)
{
    const unsigned int before = CountOf(m_a);
    {
        ORXListValORXBaseUnknown_var list;
        list.Append(m_a);
        list.Append(m_a);
        EXPECT_EQ(CountOf(m_a), before + 2);
        const ORXListValORXBaseUnknown_var copy = list;
        EXPECT_EQ(CountOf(m_a), before + 4);
        list.RemovePosition(2);
        EXPECT_EQ(CountOf(m_a), before + 3);
        EXPECT_EQ(copy.Size(), 2) << "a copy is a list of its own";
        const ORXListValORXBaseUnknown_var moved = std::move(list);
        EXPECT_EQ(CountOf(m_a), before + 3);
    }
    EXPECT_EQ(CountOf(m_a), before);
}
} // namespace
