/**
 * @file
 * Types that their catalog marks for a manager.
 */

#include <algorithm>
#include <string_view>

#include "HostTypes.h"

namespace
{
using Names = std::vector<std::string>;

/// The marked types of these tests; other test programs of the process may mark their own.
Names Managed()
{
    Names names;
    for (const std::string& name : VYRStandalone::ManagedTypes())
        if (name.starts_with("HostManaged"))
            names.push_back(name);
    return names;
}

std::string Catalog(const std::string& iTypes)
{
    return R"({ "catalog": "HostManaged", "uses": ["VYRCfdBase"], "types": [ )" + iTypes + " ] }";
}

std::string ErrorOf(const std::string& iTypes)
{
    try
    {
        VYRStandalone::DeclareCatalog(Catalog(iTypes), "c.json");
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        return error.what();
    }
    return "";
}

TEST(ManagedTypes, AreThoseThatAreMarked_InTheOrderOfTheirDeclaration)
{
    // The last one derives from a type that is declared behind it.
    const std::string types = R"(
        { "name": "HostManagedZ", "base": "VYRCfdChoice", "manager": true },
        { "name": "HostManagedPlain", "base": "VYRCfdChoice" },
        { "name": "HostManagedNot", "base": "VYRCfdChoice", "manager": false },
        { "name": "HostManagedUnderPlain", "base": "HostManagedPlain", "manager": true },
        { "name": "HostManagedUnderMarked", "base": "HostManagedZ" },
        { "name": "HostManagedEarly", "base": "HostManagedLate", "manager": true },
        { "name": "HostManagedLate", "base": "HostManagedNot" })";
    EXPECT_EQ(ErrorOf(types), "");
    EXPECT_EQ(Managed(), (Names{"HostManagedZ", "HostManagedUnderPlain", "HostManagedEarly"}));
    EXPECT_EQ(ErrorOf(types), "") << "declared again unchanged";
    EXPECT_EQ(Managed(), (Names{"HostManagedZ", "HostManagedUnderPlain", "HostManagedEarly"}));
}

TEST(ManagedTypes, KeepNothingOfACatalogThatIsRefused)
{
    EXPECT_NE(ErrorOf(R"({ "name": "HostManagedRefused", "base": "VYRCfdChoice", "manager": true },
                         { "name": "HostManagedBroken", "base": "VYRCfdNone" })"),
              "");
    const Names managed = Managed();
    EXPECT_EQ(std::count(managed.begin(), managed.end(), "HostManagedRefused"), 0);
    const Names all = VYRStandalone::TypeNames();
    EXPECT_EQ(std::count(all.begin(), all.end(), "HostManagedRefused"), 0);
}

TEST(ManagedTypes, FalseIsAcceptedAlsoWhereAManagerIsNot)
{
    EXPECT_EQ(ErrorOf(R"({ "name": "HostManagedValues", "base": "VYRCfdValues", "manager": false })"), "");
    const Names managed = Managed();
    EXPECT_EQ(std::count(managed.begin(), managed.end(), "HostManagedValues"), 0);
}

struct Refusal
{
    const char* name;
    const char* type;
    const char* error;
};

class RefusedManagers : public testing::TestWithParam<Refusal>
{
};

TEST_P(RefusedManagers, SayWhereAndWhy)
{
    EXPECT_EQ(ErrorOf(GetParam().type), GetParam().error);
    const Names all = VYRStandalone::TypeNames();
    EXPECT_EQ(std::count(all.begin(), all.end(), "HostManagedWrong"), 0);
}

const Refusal refusals[] = {
    {"WithoutABase", R"({ "name": "HostManagedWrong", "manager": true })",
     "c.json: /types/0: a manager is for Choices: type \"HostManagedWrong\" does not derive from \"VYRCfdChoice\""},
    {"OfAValuesFeature", R"({ "name": "HostManagedWrong", "base": "VYRCfdValues", "manager": true })",
     "c.json: /types/0: a manager is for Choices: type \"HostManagedWrong\" does not derive from \"VYRCfdChoice\""},
    {"Text", R"({ "name": "HostManagedWrong", "base": "VYRCfdChoice", "manager": "true" })",
     "c.json: /types/0/manager: must be true or false, not a text"},
    {"Number", R"({ "name": "HostManagedWrong", "base": "VYRCfdChoice", "manager": 1 })",
     "c.json: /types/0/manager: must be true or false, not an integer"},
    {"Null", R"({ "name": "HostManagedWrong", "base": "VYRCfdChoice", "manager": null })",
     "c.json: /types/0/manager: must be true or false, not null"},
};

INSTANTIATE_TEST_SUITE_P(Managers, RefusedManagers, testing::ValuesIn(refusals),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });
} // namespace
