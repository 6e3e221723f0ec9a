/**
 * @file
 * Models in memory.
 */

#include <stdexcept>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "ORXISpecAttrAccess.h"
#include "TestCatalog.h"
#include "VYRIMpaDefaultManagementProtected.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"

namespace
{
using VYRStandalone::Model;

class Models : public testing::Test
{
protected:
    Models() { TestCatalog::Declare(); }
};

TEST_F(Models, Create_PutsObjectsIntoTheContainerInOrder)
{
    Model model;
    const ORXISpecObject_var first = model.Create("Part", "A");
    const ORXISpecObject_var second = model.Create("SubPart", "B");
    const std::vector<ORXISpecObject_var> objects = model.Objects();
    ASSERT_EQ(objects.size(), 2U);
    EXPECT_EQ(objects[0], first);
    EXPECT_EQ(objects[1], second);
    EXPECT_EQ(first->GetContainer(), model.Container());
    EXPECT_EQ(ORXISpecObject_var::Adopt(first->GetOwner()), NULL_var);
}

TEST_F(Models, Create_OfAnUnknownType_Throws)
{
    Model model;
    try
    {
        model.Create("Prat", "A");
        FAIL();
    }
    catch (const std::invalid_argument& error)
    {
        EXPECT_STREQ(error.what(), "unknown type: Prat");
    }
    EXPECT_TRUE(model.Objects().empty());
}

TEST_F(Models, Find_TriesDisplayNameThenNameThenTypeThenPosition)
{
    Model model;
    const ORXISpecObject_var first = model.Create("Part", "A");
    const ORXISpecObject_var second = model.Create("Part", "B");
    const ORXISpecObject_var third = model.Create("SubPart", "2");
    EXPECT_EQ(model.Find("A"), first);
    EXPECT_EQ(model.Find("Part"), first) << "the first of its type";
    EXPECT_EQ(model.Find("SubPart"), third);
    EXPECT_EQ(model.Find("1"), first);
    EXPECT_EQ(model.Find("2"), third) << "a name that is made of digits comes before a position";
    EXPECT_EQ(model.Find("3"), third);
    for (const char* unknown : {"", "0", "4", "-1", "a", "Everything"})
        EXPECT_EQ(model.Find(unknown), NULL_var) << unknown;
    VYRStandalone::SetAlias(second, "A");
    EXPECT_EQ(model.Find("A"), second) << "a display name comes before a name";
    VYRStandalone::SetAlias(second, "");
    EXPECT_EQ(model.Find("A"), first);
    VYRStandalone::SetIdentifier(second, "I");
    EXPECT_EQ(model.Find("I"), NULL_var) << "an identifier is not among the meanings";
}

TEST_F(Models, Close_LetsTheObjectsGoAndTheModelBeUsedOn)
{
    Model model = Model::Parse(TestCatalog::ModelOfValues(""), "test");
    const ORXISpecObject_var held = model.Find("E");
    model.Close();
    EXPECT_TRUE(model.Objects().empty());
    EXPECT_EQ(held->GetContainer(), NULL_var) << "what is held lives on outside every model";
    EXPECT_STREQ(held->GetName(), "E");
    model.Create("Part", "P");
    EXPECT_EQ(model.Objects().size(), 1U);
    EXPECT_EQ(model.Text().find("Everything"), std::string::npos);
}

TEST_F(Models, Close_TakesReferencesOutOfWhatIsHeld)
{
    ORXISpecObject_var held;
    {
        const Model model = Model::Parse(TestCatalog::Model(R"(
            {"type": "Everything", "name": "E", "values": {"other": {"ref": "P"}}}, {"type": "Part", "name": "P"})"),
                                         "test");
        held = model.Find("E");
    }
    const ORXISpecAttrAccess_var access = held;
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("other"));
    EXPECT_EQ(ORXISpecObject_var::Adopt(access->GetSpecObject(key)), NULL_var);
}

TEST_F(Models, Moving_TakesTheObjectsAlong)
{
    Model source;
    const ORXISpecObject_var part = source.Create("Part", "P");
    Model target(std::move(source));
    EXPECT_EQ(target.Find("P"), part);
    Model assigned;
    assigned.Create("Part", "gone");
    assigned = std::move(target);
    EXPECT_EQ(assigned.Find("P"), part);
    EXPECT_EQ(assigned.Objects().size(), 1U);
}

TEST_F(Models, TwoModels_ShareNothingButTypes)
{
    const Model left = Model::Parse(TestCatalog::ModelOfValues("\"real\": 1"), "left");
    const Model right = Model::Parse(TestCatalog::ModelOfValues("\"real\": 2"), "right");
    const ORXISpecAttrAccess_var leftAccess = left.Find("E");
    const ORXISpecAttrAccess_var rightAccess = right.Find("E");
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(leftAccess->GetAttrKey("real"));
    EXPECT_EQ(leftAccess->GetDouble(key), 1.0);
    EXPECT_EQ(rightAccess->GetDouble(key), 2.0);
    EXPECT_NE(left.Find("E"), right.Find("E"));
}

TEST_F(Models, DropExtensions_LosesWhatLivesInMemoryOnly)
{
    VYRStandalone::DeclareCatalog(R"({"catalog": "DropTest", "types": [
        {"name": "DropOuter", "base": "VYRCfdValues", "attributes": [
            {"name": "inner", "kind": "component", "type": "DropInner"}]},
        {"name": "DropInner", "base": "VYRCfdValues", "attributes": [{"name": "rate", "kind": "real"}]}]})",
                                  "DropTest");
    Model model;
    const ORXISpecAttrAccess_var outer = model.Create("DropOuter", "D");
    const ORXISpecAttrKey_var key = ORXISpecAttrKey_var::Adopt(outer->GetAttrKey("inner"));
    const auto hasCustomDefault = [&] {
        const VYRIMpaDefaultManagementProtected_var management = ORXISpecObject_var::Adopt(outer->GetSpecObject(key));
        unsigned char has = 9;
        EXPECT_EQ(management->HasCustomDefault("rate", has), S_OK);
        return has;
    };
    {
        const VYRIMpaDefaultManagementProtected_var management = ORXISpecObject_var::Adopt(outer->GetSpecObject(key));
        ORXUnicodeString value("0.5");
        EXPECT_EQ(management->SetCustomDefault("rate", value), S_OK);
    }
    EXPECT_EQ(hasCustomDefault(), 1);
    model.DropExtensions();
    EXPECT_EQ(hasCustomDefault(), 0);
}
} // namespace
