/**
 * @file
 * Lists of an attribute store: of values, of references and of components; ranges, moving, and objects that stand in a
 * list twice.
 */

#include <memory>
#include <ostream>

#include "ContractTest.h"

namespace
{
class Lists : public ContractTest
{
protected:
    Lists() : m_object(Make("ContractPlain", "L")), m_access(m_object)
    {
        for (const char* name : {"A", "B", "C", "D"})
            m_items.push_back(Make("ContractLeaf", name));
    }

    /// Fills a list with items, given by the letters of their names; "-" is an empty entry.
    void Fill(const char* iName, const std::string& iLetters)
    {
        const ORXISpecAttrKey_var key = KeyOf(m_object, iName);
        m_access->RemoveAll(key);
        int position = 0;
        for (const char letter : iLetters)
            ASSERT_EQ(m_access->InsertAtPosition(key, Item(letter), ++position), S_OK);
    }

    ORXISpecObject_var Item(char iLetter) const
    {
        return iLetter == '-' ? ORXISpecObject_var() : m_items[static_cast<std::size_t>(iLetter - 'A')];
    }

    ORXISpecObject_var m_object;
    ORXISpecAttrAccess_var m_access;
    std::vector<ORXISpecObject_var> m_items;
};

TEST_F(Lists, OfValues_AreReadFromOneToTheirSize)
{
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "reals")), 2);
    EXPECT_EQ(m_access->GetDouble(KeyOf(m_object, "reals"), 1), 1.5);
    EXPECT_EQ(m_access->GetDouble(KeyOf(m_object, "reals"), 2), 2.5);
    EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "counts"), 2), 5);
    EXPECT_EQ(m_access->GetBoolean(KeyOf(m_object, "flags"), 1), ORXTrue);
    EXPECT_EQ(m_access->GetBoolean(KeyOf(m_object, "flags"), 2), ORXFalse);
    EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "modes"), 1), 2);
    EXPECT_EQ(Narrow(m_access->GetString(KeyOf(m_object, "names"), 2)), "b");
    for (const int index : {-1, 0, 3})
    {
        EXPECT_EQ(m_access->GetDouble(KeyOf(m_object, "reals"), index), 0.0) << index;
        EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "counts"), index), 0) << index;
        EXPECT_EQ(m_access->GetBoolean(KeyOf(m_object, "flags"), index), ORXFalse) << index;
        EXPECT_TRUE(m_access->GetString(KeyOf(m_object, "names"), index).IsEmpty()) << index;
    }
}

TEST_F(Lists, OfValues_AreWrittenWithinTheirSizeOnly)
{
    for (const int index : {-1, 0, 3})
    {
        EXPECT_EQ(m_access->SetDouble(KeyOf(m_object, "reals"), 9.0, index), E_FAIL) << index;
        EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "counts"), 9, index), E_FAIL) << index;
        EXPECT_EQ(m_access->SetBoolean(KeyOf(m_object, "flags"), ORXTrue, index), E_FAIL) << index;
        EXPECT_EQ(m_access->SetString(KeyOf(m_object, "names"), "z", index), E_FAIL) << index;
    }
    EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "modes"), 3, 1), E_FAIL);
    EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "reals"), 1, 1), E_FAIL);
    EXPECT_EQ(m_access->SetDouble(KeyOf(m_object, "reals"), 9.0, 2), S_OK);
    EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "counts"), 9, 1), S_OK);
    EXPECT_EQ(m_access->SetBoolean(KeyOf(m_object, "flags"), 2, 2), S_OK);
    EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "modes"), 1, 1), S_OK);
    EXPECT_EQ(m_access->SetString(KeyOf(m_object, "names"), "z", 1), S_OK);
    EXPECT_EQ(m_access->GetDouble(KeyOf(m_object, "reals"), 2), 9.0);
    EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "counts"), 1), 9);
    EXPECT_EQ(m_access->GetBoolean(KeyOf(m_object, "flags"), 2), ORXTrue);
    EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "modes"), 1), 1);
    EXPECT_EQ(Narrow(m_access->GetString(KeyOf(m_object, "names"), 1)), "z");
}

TEST_F(Lists, OfNumbers_TakeValuesOfTheirKindOnly)
{
    EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "reals"), 1, 1), E_FAIL);
    EXPECT_EQ(m_access->SetDouble(KeyOf(m_object, "counts"), 1.0, 1), E_FAIL);
    EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "flags"), 1, 1), E_FAIL);
    EXPECT_EQ(m_access->SetBoolean(KeyOf(m_object, "counts"), ORXTrue, 1), E_FAIL);
    EXPECT_EQ(m_access->SetInteger(KeyOf(m_object, "modes"), 0, 1), E_FAIL);
    EXPECT_EQ(Set(m_object, "names", Item('A'), 1), E_FAIL);
    EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "flags"), 1), 0);
    EXPECT_EQ(m_access->GetBoolean(KeyOf(m_object, "counts"), 1), ORXFalse);
    EXPECT_EQ(m_access->GetInteger(KeyOf(m_object, "counts"), 1), 4);
}

TEST_F(Lists, GetListSize_CountsEmptyEntriesAndIsZeroForWhatIsNoList)
{
    Fill("refs", "A-B-");
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "refs")), 4);
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "parts")), 0);
    for (const char* name : {"ratio", "title", "part", "ref"})
        EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, name)), 0) << name;
}

TEST_F(Lists, SetStringList_ReplacesTheWhole)
{
    ORXListValORXUnicodeString values;
    values.Append("x");
    values.Append("");
    values.Append("z");
    EXPECT_EQ(m_access->SetStringList(KeyOf(m_object, "names"), values), S_OK);
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "names")), 3);
    EXPECT_EQ(Narrow(m_access->GetString(KeyOf(m_object, "names"), 3)), "z");
    EXPECT_EQ(m_access->SetStringList(KeyOf(m_object, "names"), {}), S_OK);
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "names")), 0);
    EXPECT_EQ(m_access->SetStringList(KeyOf(m_object, "reals"), values), E_FAIL);
    EXPECT_EQ(m_access->SetStringList(KeyOf(m_object, "title"), values), E_FAIL);
}

TEST_F(Lists, SetStringList_KeepsACopy)
{
    ORXListValORXUnicodeString values = ListOf({"x", "y"});
    EXPECT_EQ(m_access->SetStringList(KeyOf(m_object, "names"), values), S_OK);
    values[1] = "changed";
    values.Append("more");
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "names")), 2);
    EXPECT_EQ(Narrow(m_access->GetString(KeyOf(m_object, "names"), 1)), "x");
}

TEST_F(Lists, OfStrings_KeepEveryPlaneEmptyOnesAndEmbeddedZeros)
{
    ORXListValORXUnicodeString values;
    for (const std::string& character : CharactersOfEveryPlane())
        values.Append(character.c_str());
    values.Append("");
    values.Append(ORXUnicodeString("a\0b", 3));
    EXPECT_EQ(m_access->SetStringList(KeyOf(m_object, "names"), values), S_OK);
    ASSERT_EQ(m_access->GetListSize(KeyOf(m_object, "names")), values.Size());
    for (int i = 1; i <= values.Size(); ++i)
        EXPECT_EQ(m_access->GetString(KeyOf(m_object, "names"), i).View(), values[i].View()) << i;
}

TEST_F(Lists, RemovePosition_ClosesUpOfEveryKind)
{
    for (const int index : {-1, 0, 3})
        EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "names"), index), E_FAIL) << index;
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "names"), 1), S_OK);
    EXPECT_EQ(Narrow(m_access->GetString(KeyOf(m_object, "names"), 1)), "b");
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "flags"), 1), S_OK);
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "flags")), 1);
    Fill("refs", "ABC");
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "refs"), 2), S_OK);
    EXPECT_EQ(NamesOf(m_object, "refs"), "A C");
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "title"), 1), E_FAIL);
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "ref"), 0), E_FAIL);
}

TEST_F(Lists, RemovePosition_TakesTheFirstTheLastAndTheOnlyEntry)
{
    Fill("refs", "ABC");
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "refs"), 3), S_OK);
    EXPECT_EQ(NamesOf(m_object, "refs"), "A B");
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "refs"), 1), S_OK);
    EXPECT_EQ(NamesOf(m_object, "refs"), "B");
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "refs"), 1), S_OK);
    EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, "refs")), 0);
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "refs"), 1), E_FAIL);
}

TEST_F(Lists, RemoveAll_EmptiesListsOfEveryKind)
{
    Fill("refs", "AB");
    for (const char* name : {"reals", "counts", "flags", "modes", "names", "refs", "parts"})
    {
        EXPECT_EQ(m_access->RemoveAll(KeyOf(m_object, name)), S_OK) << name;
        EXPECT_EQ(m_access->GetListSize(KeyOf(m_object, name)), 0) << name;
    }
    EXPECT_EQ(m_access->RemoveAll(KeyOf(m_object, "ref")), E_FAIL);
}

TEST_F(Lists, RemoveAll_OfAnEmptyListSucceeds)
{
    EXPECT_EQ(m_access->RemoveAll(KeyOf(m_object, "refs")), S_OK);
    EXPECT_EQ(m_access->RemoveAll(KeyOf(m_object, "names")), S_OK);
    EXPECT_EQ(m_access->RemoveAll(KeyOf(m_object, "names")), S_OK);
}

TEST_F(Lists, InsertAtPosition_TakesPlacesUpToOneBehindTheLast)
{
    EXPECT_EQ(Insert(m_object, "refs", Item('A'), 0), E_FAIL);
    EXPECT_EQ(Insert(m_object, "refs", Item('A'), 2), E_FAIL);
    EXPECT_EQ(Insert(m_object, "refs", Item('A'), 1), S_OK);
    EXPECT_EQ(Insert(m_object, "refs", Item('B'), 2), S_OK);
    EXPECT_EQ(Insert(m_object, "refs", Item('C'), 1), S_OK);
    EXPECT_EQ(Insert(m_object, "refs", Item('-'), 2), S_OK);
    EXPECT_EQ(NamesOf(m_object, "refs"), "C (null) A B");
    EXPECT_EQ(Insert(m_object, "names", Item('A'), 1), E_FAIL);
    EXPECT_EQ(Insert(m_object, "ref", Item('A'), 1), E_FAIL);
}

TEST_F(Lists, SetSpecObject_ReplacesAnEntryAndNullKeepsItsPlace)
{
    Fill("refs", "ABC");
    EXPECT_EQ(Set(m_object, "refs", Item('D'), 2), S_OK);
    EXPECT_EQ(Set(m_object, "refs", Item('-'), 1), S_OK);
    EXPECT_EQ(NamesOf(m_object, "refs"), "(null) D C");
    EXPECT_TRUE(!ObjectOf(m_object, "refs", 1));
    for (const int index : {-1, 0, 4})
        EXPECT_EQ(Set(m_object, "refs", Item('A'), index), E_FAIL) << index;
    EXPECT_EQ(NamesOf(m_object, "refs"), "(null) D C");
}

TEST_F(Lists, GetSpecObject_GivesANewReferenceOfTheEntry)
{
    Fill("refs", "A-");
    const unsigned int before = CountOf(Item('A'));
    {
        const ORXISpecObject_var entry = ObjectOf(m_object, "refs", 1);
        EXPECT_EQ(entry.Pointer(), Item('A').Pointer());
        EXPECT_EQ(CountOf(Item('A')), before + 1);
    }
    EXPECT_EQ(CountOf(Item('A')), before);
    for (const int index : {-1, 0, 2, 3})
        EXPECT_TRUE(!ObjectOf(m_object, "refs", index)) << index;
}

struct Move
{
    const char* before;
    char item;
    int index;
    HRESULT status;
    const char* after;
};

std::ostream& operator<<(std::ostream& ioStream, const Move& iMove)
{
    return ioStream << iMove.item << " in " << iMove.before << " to " << iMove.index;
}

class Moves : public Lists, public testing::WithParamInterface<Move>
{
};

TEST_P(Moves, TakeTheFirstAtOrBehindThePositionElseTheFirstAtAll)
{
    for (const char* list : {"refs", "parts"})
    {
        Fill(list, GetParam().before);
        EXPECT_EQ(m_access->MoveInPosition(KeyOf(m_object, list), Item(GetParam().item), GetParam().index),
                  GetParam().status)
            << list;
        EXPECT_EQ(NamesOf(m_object, list), GetParam().after) << list;
    }
}

INSTANTIATE_TEST_SUITE_P(Lists, Moves,
                         testing::Values(Move{"ABCB", 'B', 2, S_OK, "A B B C"}, Move{"AAB", 'A', 1, S_OK, "A A B"},
                                         Move{"ABC", 'C', 1, S_OK, "C A B"}, Move{"ABC", 'A', 3, S_OK, "B C A"},
                                         Move{"ABC", 'B', 2, S_OK, "A B C"}, Move{"ABCA", 'A', 2, S_OK, "A A B C"},
                                         Move{"ABAC", 'A', 4, S_OK, "B A C A"}, Move{"AABC", 'A', 3, S_OK, "A B A C"},
                                         Move{"A-B", '-', 3, S_OK, "A B (null)"},
                                         Move{"A-B", '-', 1, S_OK, "(null) A B"}, Move{"ABC", 'D', 1, E_FAIL, "A B C"},
                                         Move{"ABC", '-', 1, E_FAIL, "A B C"}, Move{"ABC", 'A', 0, E_FAIL, "A B C"},
                                         Move{"ABC", 'A', 4, E_FAIL, "A B C"}));

TEST_F(Lists, MoveInPosition_OneOccurrenceAfterTheOther_BringsAllSideBySide)
{
    Fill("refs", "ABACA");
    for (const int index : {1, 1, 1})
        EXPECT_EQ(m_access->MoveInPosition(KeyOf(m_object, "refs"), Item('A'), index), S_OK);
    EXPECT_EQ(NamesOf(m_object, "refs"), "A A A B C");
}

TEST_F(Lists, MoveInPosition_InWhatIsNoListOfObjects_Fails)
{
    for (const char* name : {"names", "reals", "ref", "part", "title"})
        EXPECT_EQ(m_access->MoveInPosition(KeyOf(m_object, name), Item('A'), 1), E_FAIL) << name;
}

TEST_F(Lists, RemoveObject_TakesTheFirstOccurrenceOut)
{
    Fill("refs", "ABA");
    m_access->RemoveObject(KeyOf(m_object, "refs"), Item('A'));
    EXPECT_EQ(NamesOf(m_object, "refs"), "B A");
    m_access->RemoveObject(KeyOf(m_object, "refs"), Item('C'));
    m_access->RemoveObject(KeyOf(m_object, "refs"), NULL_var);
    EXPECT_EQ(NamesOf(m_object, "refs"), "B A");
}

TEST_F(Lists, ListObjects_GivesACopy_EmptyOrNullWhereThereIsNothing)
{
    Fill("refs", "AB");
    const std::unique_ptr<ORXListValORXBaseUnknown_var> copy(m_access->ListObjects(KeyOf(m_object, "refs")));
    copy->RemovePosition(1);
    EXPECT_EQ(NamesOf(m_object, "refs"), "A B");
    for (const char* name : {"parts", "names", "ref", "title"})
    {
        const std::unique_ptr<ORXListValORXBaseUnknown_var> empty(m_access->ListObjects(KeyOf(m_object, name)));
        EXPECT_TRUE(empty == nullptr || empty->Size() == 0) << name;
    }
}

TEST_F(Lists, ListObjects_HoldsItsEntriesInTheirOrder)
{
    Fill("refs", "B-A");
    const unsigned int before = CountOf(Item('A'));
    {
        const std::unique_ptr<ORXListValORXBaseUnknown_var> list(m_access->ListObjects(KeyOf(m_object, "refs")));
        ASSERT_EQ(list->Size(), 3);
        EXPECT_TRUE((*list)[1] == Item('B'));
        EXPECT_TRUE(!(*list)[2]);
        EXPECT_TRUE((*list)[3] == Item('A'));
        EXPECT_EQ(CountOf(Item('A')), before + 1);
    }
    EXPECT_EQ(CountOf(Item('A')), before);
}

/// An attribute that holds A and B, which nobody else does.
struct Listed
{
    ORXISpecAttrAccess_var access;
    ORXISpecAttrKey_var key;
    /// Has components, too.
    ORXISpecObject_var other;

    ORXISpecObject_var At(int iPosition) const
    {
        return ORXISpecObject_var::Adopt(access->GetSpecObject(key, iPosition));
    }
};

/// Takes A and B out.
struct ListEnd
{
    const char* name;
    void (*end)(const Listed& iListed);
};

std::ostream& operator<<(std::ostream& ioStream, const ListEnd& iEnd)
{
    return ioStream << iEnd.name;
}

class ListedObjects : public Lists, public testing::WithParamInterface<ListEnd>
{
};

TEST_P(ListedObjects, AreHeldByTheListsHoweverTheyLeaveTheAttribute)
{
    for (const char* attribute : {"refs", "parts"})
    {
        SCOPED_TRACE(attribute);
        HostUnderTest::Model model;
        Listed listed{{}, {}, m_object};
        std::unique_ptr<const ORXListValORXBaseUnknown_var> first;
        std::unique_ptr<const ORXListValORXBaseUnknown_var> second;
        {
            HostUnderTest::Model passing;
            const ORXISpecObject_var owner = MakeIn(model, "ContractPlain", "Owner");
            listed.access = owner;
            listed.key = KeyOf(owner, attribute);
            EXPECT_EQ(Insert(owner, attribute, MakeIn(passing, "ContractLeaf", "B"), 1), S_OK);
            EXPECT_EQ(Insert(owner, attribute, MakeIn(passing, "ContractLeaf", "A"), 1), S_OK);
            first.reset(listed.access->ListObjects(listed.key));
            delete listed.access->ListObjects(listed.key);
            second.reset(listed.access->ListObjects(listed.key));
        }
        GetParam().end(listed);
        const bool hasLeft = GetParam().name != std::string("all");
        EXPECT_EQ(listed.access->GetListSize(listed.key), hasLeft ? 0 : 2);
        listed = Listed{};
        model.Close();
        for (const auto* list : {first.get(), second.get()})
        {
            ASSERT_EQ(list->Size(), 2);
            for (int i = 1; i <= 2; ++i)
                EXPECT_EQ(CountOf((*list)[i]), 2u) << "one for each list";
            EXPECT_EQ(Narrow(ORXISpecObject_var((*list)[1])->GetName()), "A");
            EXPECT_EQ(Narrow(ORXISpecObject_var((*list)[2])->GetName()), "B");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Lists, ListedObjects,
                         testing::Values(ListEnd{"RemovePosition",
                                                 [](const Listed& iListed) {
                                                     for (const int position : {2, 1})
                                                         iListed.access->RemovePosition(iListed.key, position);
                                                 }},
                                         ListEnd{"RemoveAll",
                                                 [](const Listed& iListed) { iListed.access->RemoveAll(iListed.key); }},
                                         ListEnd{"RemoveObject",
                                                 [](const Listed& iListed) {
                                                     for (int i = 0; i < 2; ++i)
                                                         iListed.access->RemoveObject(iListed.key, iListed.At(1));
                                                 }},
                                         ListEnd{"SetSpecObject",
                                                 [](const Listed& iListed) {
                                                     for (const int position : {1, 2})
                                                         iListed.access->SetSpecObject(iListed.key, NULL_var, position);
                                                     for (const int position : {2, 1})
                                                         iListed.access->RemovePosition(iListed.key, position);
                                                 }},
                                         ListEnd{"moved first",
                                                 [](const Listed& iListed) {
                                                     iListed.access->MoveInPosition(iListed.key, iListed.At(2), 1);
                                                     iListed.access->RemoveAll(iListed.key);
                                                 }},
                                         ListEnd{"taken over by another owner",
                                                 [](const Listed& iListed) {
                                                     const ORXISpecAttrAccess_var access = iListed.other;
                                                     const ORXISpecAttrKey_var key =
                                                         ORXISpecAttrKey_var::Adopt(access->GetAttrKey("parts"));
                                                     for (const int position : {2, 1})
                                                         access->InsertAtPosition(key, iListed.At(position), 1);
                                                     access->RemoveAll(key);
                                                     iListed.access->RemoveAll(iListed.key);
                                                 }},
                                         ListEnd{"all", [](const Listed&) {}}));

TEST_F(Lists, ListObjects_EachChangeOfTheCopyIsTheCopysAlone)
{
    using List = ORXListValORXBaseUnknown_var;
    const std::vector<void (*)(List&)> changes = {
        [](List& ioList) { ioList[1] = NULL_var; },
        [](List& ioList) { ioList.RemovePosition(2); },
        [](List& ioList) { ioList.InsertAt(1, ioList[2]); },
        [](List& ioList) { ioList.Append(ioList[1]); },
        [](List& ioList) { ioList.Append(ORXBaseUnknown_var(ioList[1])); },
        [](List& ioList) { ioList = List(); },
        [](List& ioList) { List().operator=(std::move(ioList)); },
        [](List& ioList) { List(std::move(ioList)).RemovePosition(1); },
        [](List& ioList) { List(ioList).RemovePosition(1); },
    };
    Fill("refs", "AB");
    const ORXISpecAttrKey_var key = KeyOf(m_object, "refs");
    const unsigned int count = CountOf(m_items[0]);
    for (std::size_t i = 0; i < changes.size(); ++i)
    {
        SCOPED_TRACE(i);
        const std::unique_ptr<List> other(m_access->ListObjects(key));
        const std::unique_ptr<List> list(m_access->ListObjects(key));
        const std::unique_ptr<List> last(m_access->ListObjects(key));
        changes[i](*list);
        EXPECT_EQ(m_access->GetListSize(key), 2);
        for (const List* unchanged : {other.get(), last.get()})
        {
            ASSERT_EQ(unchanged->Size(), 2);
            EXPECT_TRUE((*unchanged)[1] == m_items[0]);
            EXPECT_TRUE((*unchanged)[2] == m_items[1]);
        }
    }
    EXPECT_EQ(CountOf(m_items[0]), count) << "and nothing is counted too often or too rarely";
    EXPECT_EQ(CountOf(m_items[1]), count);
}

TEST_F(Lists, OfComponents_MayHoldAnObjectTwiceAndOwnItUntilTheLastEntryGoes)
{
    Fill("parts", "AA");
    EXPECT_TRUE(ORXISpecObject_var::Adopt(Item('A')->GetOwner()) == m_object);
    EXPECT_EQ(m_access->RemovePosition(KeyOf(m_object, "parts"), 1), S_OK);
    EXPECT_TRUE(ORXISpecObject_var::Adopt(Item('A')->GetOwner()) == m_object);
    EXPECT_EQ(Set(m_object, "parts", NULL_var, 1), S_OK);
    EXPECT_EQ(Item('A')->GetOwner(), nullptr);
    EXPECT_TRUE(!Item('A')->GetContainer());
    EXPECT_EQ(CountOf(m_items[0]), 1u);
}

TEST_F(Lists, OfComponents_ReplacingAnEntryByItsOwnObjectKeepsTheOwner)
{
    Fill("parts", "A");
    EXPECT_EQ(Set(m_object, "parts", Item('A'), 1), S_OK);
    EXPECT_TRUE(ORXISpecObject_var::Adopt(Item('A')->GetOwner()) == m_object);
    EXPECT_EQ(CountOf(m_items[0]), 2u);
}

TEST_F(Lists, OfReferences_HoldTheirObjectsOncePerEntry)
{
    const unsigned int before = CountOf(Item('A'));
    Fill("refs", "AA");
    EXPECT_EQ(CountOf(Item('A')), before + 2);
    EXPECT_EQ(Set(m_object, "refs", Item('B'), 1), S_OK);
    EXPECT_EQ(CountOf(Item('A')), before + 1);
    m_access->RemoveObject(KeyOf(m_object, "refs"), Item('A'));
    EXPECT_EQ(CountOf(Item('A')), before);
    Fill("refs", "AAA");
    EXPECT_EQ(m_access->RemoveAll(KeyOf(m_object, "refs")), S_OK);
    EXPECT_EQ(CountOf(Item('A')), before);
}

TEST_F(Lists, OfComponents_RemoveAllAndRemoveObject_GiveTheOwnerUp)
{
    Fill("parts", "AB");
    m_access->RemoveObject(KeyOf(m_object, "parts"), Item('A'));
    EXPECT_TRUE(!OwnerOf(Item('A')));
    EXPECT_TRUE(OwnerOf(Item('B')) == m_object);
    EXPECT_EQ(m_access->RemoveAll(KeyOf(m_object, "parts")), S_OK);
    EXPECT_TRUE(!OwnerOf(Item('B')));
    EXPECT_EQ(TopLevel(), "L C D") << "who loses the owner leaves the model";
}

TEST_F(Lists, OfThousandEntries_KeepTheirOrder)
{
    const ORXISpecAttrKey_var refs = KeyOf(m_object, "refs");
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(m_access->InsertAtPosition(refs, m_items[static_cast<std::size_t>(i % 4)], i + 1), S_OK);
    EXPECT_EQ(m_access->GetListSize(refs), 1000);
    EXPECT_TRUE(ObjectOf(m_object, "refs", 1) == Item('A'));
    EXPECT_TRUE(ObjectOf(m_object, "refs", 1000) == Item('D'));
    EXPECT_TRUE(!ObjectOf(m_object, "refs", 1001));
}
} // namespace
