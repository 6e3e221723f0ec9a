/**
 * @file
 * vyrcfd describe. Whole answers stand in the goldens.
 */

#include "SmallTest.h"

namespace
{
struct Description
{
    const char* name;
    const char* item;
    /// Behind the number of the item.
    std::vector<std::string> lines;
};

void PrintTo(const Description& iOne, std::ostream* oStream)
{
    *oStream << iOne.name;
}

class Descriptions : public ToolTest, public testing::WithParamInterface<Description>
{
};

TEST_P(Descriptions, SayWhatTheItemDoes)
{
    Write(std::string(Configurations) + "meshFYEConfig.json",
          std::string(R"({"configurations": [{"name": "one", "config": [)") + GetParam().item +
              R"(]}, {"name": "empty"}]})");
    const ToolRun run = Run({"describe", "one"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    std::string expected = "one  1 item  " + std::string(Configurations) + "meshFYEConfig.json:1\n";
    for (std::size_t i = 0; i < GetParam().lines.size(); ++i)
        expected += (i == 0 ? "   1. " : "          ") + GetParam().lines[i] + "\n";
    EXPECT_EQ(run.output, expected);
}

const Description DescriptionCases[] = {
    {"Default",
     R"({"path": "a", "type": "real", "default": "1"})",
     {"gives a the default \"1\", and records it; a value that was set stays"}},
    {"AutomaticDefault",
     R"({"path": "a", "default": "1", "defaultAutoKey": "k"})",
     {"gives a the default \"1\", automatic by \"k\", and records it; a value that was set stays the first time, and "
      "gives way when this is applied again"}},
    {"Values", R"({"path": "a", "value": "b, c d", "list": true})", {"writes \"b\", \"cd\" to the list a"}},
    {"ValueWithoutList",
     R"({"path": "a", "value": "b", "default": "c"})",
     {"does nothing: a \"value\" needs \"list\": true, and takes whatever else the item holds with it"}},
    {"KeyWithoutDefault",
     R"({"path": "a", "defaultAutoKey": "k"})",
     {"does nothing: a \"defaultAutoKey\" needs a \"default\""}},
    {"Nothing", "{}", {"does nothing: it has no \"choices\", \"value\", \"default\" or \"config\""}},
    {"Nested",
     R"({"config": "meshing", "path": "a/b"})",
     {"applies meshing to a/b", "but there is no configuration "
                                "\"meshing\""}},
    {"NestedWithoutItems", R"({"config": "empty"})", {"applies empty to the object itself", "which has no items"}},
    {"Conditional",
     R"({"config": "one", "path": "a", "condition": "b==c"})",
     {"applies one to a if b==c, and records that"}},
    {"Choice",
     R"({"choices": "a, b", "Startups": "A,", "default": "b", "display": "Kind"})",
     {"lets the object choose from 2 values, shown as \"Kind\"", "\"a\" with data of type A", "\"b\" without data",
      "default \"b\", recorded for value"}},
    {"ChoiceOfAManager",
     R"({"choices": "a", "path": "p"})",
     {"lets the object choose from 1 value; through its manager, where it has one", "\"a\"",
      "no default, and no record", "the path only shapes the record: the object itself is the Choice"}},
    {"ChoiceWithTooFewStartups",
     R"({"choices": "a, b", "Startups": "A"})",
     {"lets the object choose from 2 values", "\"a\" with data of type A", "\"b\" without data",
      "but \"Startups\" names 1 type for 2 values", "no default, and no record"}},
};
INSTANTIATE_TEST_SUITE_P(Describe, Descriptions, testing::ValuesIn(DescriptionCases),
                         [](const auto& iInfo) { return iInfo.param.name; });

TEST_F(SmallTest, Describe_OfACircle_Ends)
{
    const ToolRun run = Run({"describe", "circle", "--nested"});
    EXPECT_EQ(Outcome(run), Outcome(0, ""));
    EXPECT_EQ(run.output, "circle  1 item  " + std::string(Configurations) +
                              "conditionsConfig_Flow.json:51\n"
                              "   1. applies circle to the object itself\n"
                              "          in a circle: this is one of those that lead here\n");
}

TEST_F(SmallTest, Describe_OfAHiddenDefinition_TellsTheOneThatHolds)
{
    Write(std::string(Configurations) + "meshFYEConfig.json", R"({"configurations": [{"name": "nothing"}]})");
    EXPECT_EQ(Run({"describe", "nothing"}).output,
              "nothing  0 items  " + std::string(Configurations) + "conditionsConfig_Flow.json:18\n" +
                  "without effect: the definition in " + Configurations + "meshFYEConfig.json:1\n" +
                  "    does nothing: it has no items\n");
}

TEST_F(SmallTest, Describe_OfAnUnknownName_SaysWhatWasProbablyMeant)
{
    EXPECT_EQ(Outcome(Run({"describe", "cavty"})),
              Outcome(1, "vyrcfd: no configuration \"cavty\"; did you mean \"cavity\"?; see vyrcfd list\n"));
}

TEST_F(ToolTest, Describe_Nested_TellsEveryConfigurationThatApplies_Once)
{
    const std::string text = Run({"describe", "externalFlow", "--nested"}).output;
    EXPECT_EQ(text.find("does nothing"), std::string::npos);
    for (const char* heading : {" airProperties  ", " turbulenceModelling  ", " sutherlandAir  "})
    {
        const std::size_t first = text.find(heading);
        EXPECT_NE(first, std::string::npos) << heading;
        EXPECT_EQ(text.find(heading, first + 1), std::string::npos) << heading;
    }
}
} // namespace
