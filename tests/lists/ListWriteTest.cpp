/**
 * @file
 * Writing lists of strings, single objects, and taking entries out.
 */

#include "ListFixture.h"
#include "ORXInterfaceIds.h"
#include "VYRStandaloneInstruments.h"

namespace
{
using Calls = std::vector<std::string>;
using Strings = std::vector<ORXUnicodeString>;
using VYRStandalone::CallRecorder;

class ListWriteTest : public ListFixture
{
protected:
    Strings Titles() const
    {
        Strings values;
        EXPECT_EQ(At("titles").GetStrings(values), S_OK);
        return values;
    }

    std::string Holds(const char* iAttribute) const
    {
        const ORXISpecObject_var object = ORXISpecObject_var::Adopt(m_access->GetSpecObject(KeyOf(iAttribute), 0));
        return !object ? "" : object->GetName().CastToCharPtr();
    }
};

TEST_F(ListWriteTest, SetStrings_ReplacesTheWholeListInOneWrite)
{
    ASSERT_EQ(At("titles").SetStrings(Strings{"old", "older"}), S_OK);
    CallRecorder calls;
    EXPECT_EQ(At("titles").SetStrings(Strings{"b", "", "a", "b"}), S_OK);
    EXPECT_EQ(Titles(), (Strings{"b", "", "a", "b"}));

    ORXListValORXUnicodeString list;
    list.Append("c");
    EXPECT_EQ(At("titles").SetStrings(list), S_OK);
    EXPECT_EQ(Titles(), (Strings{"c"}));
    EXPECT_EQ(At("titles").SetStrings(Strings{}), S_OK);
    EXPECT_EQ(Titles(), Strings{});
    EXPECT_EQ(calls.Take(),
              (Calls{"write Owner.titles = [b, , a, b]", "write Owner.titles = [c]", "write Owner.titles = []"}));
}

TEST_F(ListWriteTest, SetStrings_DoesNotLookAtTheHostsStatus)
{
    ASSERT_EQ(At("titles").SetStrings(Strings{"old"}), S_OK);
    MakeFail("SetStringList", "titles", E_FAIL, 1, 2);
    EXPECT_EQ(At("titles").SetStrings(Strings{"new"}), S_OK);
    EXPECT_EQ(At("titles").SetStrings(ORXListValORXUnicodeString()), S_OK);
    EXPECT_EQ(VYRStandalone::FaultsHit(), 2);
    EXPECT_EQ(Titles(), (Strings{"old"}));
}

TEST_F(ListWriteTest, SetObject_WritesAScalarAttribute)
{
    EXPECT_EQ(At("material").SetObject(Unknown("A"), 0), S_OK);
    EXPECT_EQ(Holds("material"), "A");
    EXPECT_EQ(At("part").SetObject(Cursor(Part("B")), 0), S_OK);
    EXPECT_EQ(Holds("part"), "B");
    EXPECT_TRUE(Cursor(Part("B")).GetParent() == Cursor(m_owner));
}

TEST_F(ListWriteTest, SetObject_WithAnIndexOnAScalar_IsReported)
{
    for (const int index : {1, -1})
        for (const char* attribute : {"material", "part"})
        {
            EXPECT_EQ(At(attribute).SetObject(Unknown("A"), index), E_FAIL);
            EXPECT_EQ(Reported(), (Records{Assertion("index == 0", "VYRCfdObjectAccess::SetObject")})) << attribute;
        }
    EXPECT_EQ(Holds("material"), "");
}

TEST_F(ListWriteTest, SetObject_OnValues_IsAnErrorAndNoAssertion)
{
    for (const char* attribute : {"title", "ratio", "count", "flag", "scheme"})
    {
        EXPECT_EQ(At(attribute).SetObject(Unknown("A"), 0), E_FAIL);
        EXPECT_EQ(Reported(), (Records{Error("incorrect attr type", "VYRCfdObjectAccess::SetObject")})) << attribute;
    }
    for (const char* attribute : {"titles", "ratios", "counts", "flags", "schemes"})
    {
        EXPECT_EQ(At(attribute).SetObject(Unknown("A"), 1), E_FAIL);
        EXPECT_EQ(Reported(), (Records{Assertion("listType == tk_component || listType == tk_specobject",
                                                 "VYRCfdObjectAccess::SetObject")}))
            << attribute;
    }
}

TEST_F(ListWriteTest, SetObject_ReplacesOneEntry)
{
    Fill("references", {"A", "B", "C"});
    CallRecorder calls;
    EXPECT_EQ(At("references").SetObject(Unknown("D"), 2), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"write Owner.references[2] = D"}));
    EXPECT_EQ(Held("references"), (Names{"A", "D", "C"}));
}

TEST_F(ListWriteTest, SetObject_HandsTheIndexOfAListToTheHost)
{
    Fill("references", {"A"});
    for (const int index : {0, -1, 3})
    {
        EXPECT_EQ(At("references").SetObject(Unknown("B"), index), E_FAIL) << index;
        EXPECT_EQ(Reported(), (Records{FailedCall("_spAttr->SetSpecObject(_spKey, iObject, index)",
                                                  "VYRCfdObjectAccess::SetObject")}))
            << index;
    }
    EXPECT_EQ(Held("references"), (Names{"A"}));
}

TEST_F(ListWriteTest, SetObject_HandsTheHostsStatusOn)
{
    MakeFail("SetSpecObject", "material", E_NOTIMPL);
    EXPECT_EQ(At("material").SetObject(Unknown("A"), 0), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("_spAttr->SetSpecObject(_spKey, iObject, index)",
                                              "VYRCfdObjectAccess::SetObject", E_NOTIMPL)}));
}

TEST_F(ListWriteTest, SetObject_DoesNotRefuseNull)
{
    Fill("references", {"A", "B"});
    ASSERT_EQ(At("material").SetObject(Unknown("C"), 0), S_OK);
    CallRecorder calls;
    EXPECT_EQ(At("references").SetObject(ORXBaseUnknown_var(), 1), S_OK);
    EXPECT_EQ(At("material").SetObject(ORXBaseUnknown_var(), 0), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"write Owner.references[1] = (null)", "write Owner.material = (null)"}));
    EXPECT_EQ(Held("references"), (Names{"", "B"}));
    EXPECT_EQ(Holds("material"), "");
}

TEST_F(ListWriteTest, SetObject_HandsWhatIsNoSpecObjectOnAsNull)
{
    ASSERT_EQ(At("material").SetObject(Unknown("A"), 0), S_OK);
    // A key is a component, and no feature object.
    EXPECT_EQ(At("material").SetObject(ORXBaseUnknown_var(KeyOf("title")), 0), S_OK);
    EXPECT_EQ(Holds("material"), "");
}

TEST_F(ListWriteTest, SetObject_WithACursor_DoesNotLookAtItsError)
{
    ASSERT_EQ(At("material").SetObject(Unknown("A"), 0), S_OK);
    EXPECT_EQ(At("material").SetObject(VYRCfdObjectAccess("an error"), 0), S_OK);
    EXPECT_EQ(Holds("material"), "");
}

TEST_F(ListWriteTest, SetObject_WithAnAttributeCursor_TakesItsObject)
{
    EXPECT_EQ(At("material").SetObject(At("title"), 0), S_OK);
    EXPECT_EQ(Holds("material"), "Owner");
}

TEST_F(ListWriteTest, Remove_TakesTheFirstOccurrenceOnly)
{
    Fill("references", {"B", "A", "", "A"});
    CallRecorder calls;
    EXPECT_EQ(At("references").Remove(Unknown("A")), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"remove Owner.references[2]"}));
    EXPECT_EQ(Held("references"), (Names{"B", "", "A"}));
}

TEST_F(ListWriteTest, Remove_OfWhatIsNotInTheList_IsFalseWithoutAWrite)
{
    Fill("references", {"B", ""});
    CallRecorder calls;
    EXPECT_EQ(At("references").Remove(Unknown("A")), S_FALSE);
    EXPECT_EQ(At("parts").Remove(Unknown("A")), S_FALSE);
    EXPECT_EQ(calls.Take(), Calls{});
}

TEST_F(ListWriteTest, Remove_OfNull_IsReportedBeforeTheKindOfTheAttribute)
{
    Fill("references", {""});
    for (const char* attribute : {"references", "titles", "title"})
    {
        EXPECT_EQ(At(attribute).Remove(ORXBaseUnknown_var()), E_FAIL);
        EXPECT_EQ(Reported(), (Records{Assertion("iObject", "VYRCfdObjectAccess::Remove")})) << attribute;
    }
    EXPECT_EQ(Held("references"), (Names{""}));
}

TEST_F(ListWriteTest, Remove_OfNull_OnACursorWithoutKey_IsSilent)
{
    EXPECT_EQ(Cursor(m_owner).Remove(ORXBaseUnknown_var()), E_FAIL);
}

TEST_F(ListWriteTest, Remove_KnowsTheObjectByIdentity_ThroughAnyInterface)
{
    Fill("references", {"B", "A"});
    EXPECT_EQ(At("references").Remove(ORXBaseUnknown_var(AccessOf(Part("A")))), S_OK);
    EXPECT_EQ(Held("references"), (Names{"B"}));
}

TEST_F(ListWriteTest, Remove_WhereTheHostListsNothing_IsFalse)
{
    Fill("references", {"A"});
    MakeFail("ListObjects", "references");
    EXPECT_EQ(At("references").Remove(Unknown("A")), S_FALSE);
    EXPECT_EQ(Held("references"), (Names{"A"}));
}

TEST_F(ListWriteTest, Remove_DoesNotLookAtTheHostsStatus)
{
    Fill("references", {"A", "A"});
    MakeFail("RemovePosition", "references", E_FAIL, 1, 1);
    CallRecorder calls;
    EXPECT_EQ(At("references").Remove(Unknown("A")), S_OK);
    EXPECT_EQ(calls.Take(), (Calls{"remove Owner.references[1]"})) << "it does not try the next occurrence";
    EXPECT_EQ(Held("references"), (Names{"A", "A"}));
}

TEST_F(ListWriteTest, RemoveAll_EmptiesListsOfEveryKind)
{
    ASSERT_EQ(At("titles").SetStrings(Strings{"a", "b"}), S_OK);
    Fill("references", {"A", ""});
    Fill("parts", {"B"});
    CallRecorder calls;
    for (const char* list : {"titles", "references", "parts"})
    {
        EXPECT_EQ(At(list).RemoveAll(), S_OK);
        int size = -1;
        EXPECT_EQ(At(list).GetListSize(size), S_OK);
        EXPECT_EQ(size, 0) << list;
    }
    EXPECT_EQ(calls.Take(), (Calls{"clear Owner.titles", "clear Owner.references", "clear Owner.parts"}));
}

TEST_F(ListWriteTest, RemoveAll_HandsTheHostsStatusOn)
{
    Fill("references", {"A"});
    MakeFail("RemoveAll", "references", E_NOTIMPL);
    EXPECT_EQ(At("references").RemoveAll(), E_NOTIMPL);
    EXPECT_EQ(Reported(),
              (Records{FailedCall("_spAttr->RemoveAll(_spKey)", "VYRCfdObjectAccess::RemoveAll", E_NOTIMPL)}));
    EXPECT_EQ(Held("references"), (Names{"A"}));
}

TEST_F(ListWriteTest, RemovePosition_TakesOneEntryOut_AlsoAnEmptyOne)
{
    Fill("references", {"A", "", "B"});
    EXPECT_EQ(At("references").RemovePosition(2), S_OK);
    EXPECT_EQ(Held("references"), (Names{"A", "B"}));
    EXPECT_EQ(At("references").RemovePosition(1), S_OK);
    EXPECT_EQ(Held("references"), (Names{"B"}));
}

TEST_F(ListWriteTest, RemovePosition_OutsideTheList_IsReportedWithoutAWrite)
{
    Fill("references", {"A", "B"});
    CallRecorder calls;
    for (const int index : {0, -1, 3})
    {
        EXPECT_EQ(At("references").RemovePosition(index), E_FAIL);
        EXPECT_EQ(Reported(), (Records{Assertion("index > 0 && index <= size", "VYRCfdObjectAccess::RemovePosition")}))
            << index;
    }
    EXPECT_EQ(calls.Take(), Calls{});
}

TEST_F(ListWriteTest, RemovePosition_OnAListOfStrings_IsReported_WhereRemoveAllSucceeds)
{
    ASSERT_EQ(At("titles").SetStrings(Strings{"a"}), S_OK);
    EXPECT_EQ(At("titles").RemovePosition(1), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("listType == tk_component || listType == tk_specobject",
                                             "VYRCfdObjectAccess::RemovePosition")}));
    EXPECT_EQ(At("titles").RemoveAll(), S_OK);
}

TEST_F(ListWriteTest, RemovePosition_HandsTheHostsStatusOn)
{
    Fill("references", {"A"});
    MakeFail("RemovePosition", "references", E_NOTIMPL);
    EXPECT_EQ(At("references").RemovePosition(1), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("_spAttr->RemovePosition(_spKey, index)",
                                              "VYRCfdObjectAccess::RemovePosition", E_NOTIMPL)}));
}

TEST_F(ListWriteTest, CleanList_TellsOfEntriesWithoutTheInterface_AndLeavesTheAttributeAsItIs)
{
    Fill("references", {"A", "B"});
    const unsigned int references = VYRStandalone::ReferenceCount(Part("A"));
    CallRecorder calls;
    EXPECT_EQ(At("references").CleanList(IID_ORXISimBCDataTableColumn), S_OK);
    EXPECT_EQ(At("references").CleanList(IID_ORXISpecObject), S_FALSE);
    EXPECT_EQ(calls.Take(), Calls{});
    EXPECT_EQ(Held("references"), (Names{"A", "B"}));
    EXPECT_EQ(VYRStandalone::ReferenceCount(Part("A")), references);
}

TEST_F(ListWriteTest, CleanList_TellsOfEmptyEntries)
{
    Fill("references", {"A", ""});
    EXPECT_EQ(At("references").CleanList(IID_ORXISpecObject), S_OK);
    EXPECT_EQ(Held("references"), (Names{"A", ""}));
}

TEST_F(ListWriteTest, CleanList_OfAnEmptyListAndOfNoList_IsFalse)
{
    EXPECT_EQ(At("references").CleanList(IID_ORXISpecObject), S_FALSE);
    Fill("references", {""});
    MakeFail("ListObjects", "references");
    EXPECT_EQ(At("references").CleanList(IID_ORXISpecObject), S_FALSE);
}
} // namespace
