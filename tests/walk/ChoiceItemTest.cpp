/**
 * @file
 * Items that set up a Choice or its manager, and the records that they leave.
 */

#include <optional>
#include <ostream>

#include "ChoiceTest.h"
#include "Configurations.h"
#include "TestManager.h"
#include "WalkTest.h"

namespace
{
constexpr const char* ConfigureCall = "spChoice->Configure(choicesList, startupsList, defaultValue, display)";
constexpr const char* ManageCall = "spChoiceMgr->ConfigureChoiceMgr(choicesList, defaultValue, display)";
constexpr const char* Configure = "VYRCfdChoiceInstanceAdp::Configure";
constexpr const char* Manage = "VYRCfdChoiceMgrAdp::ConfigureChoiceMgr";
constexpr const char* SizesOfConfigure = "iStartups.size() == 0 || iStartups.size() == iChoices.size()";

/**
 * Has three objects: "Plain.1" is a Choice and nothing else, "Managed.1" is also a manager, both as `ThreeChoices`
 * declares them; "Empty.1" is a Choice that declares nothing.
 */
class ChoiceItemTest : public ChoiceTest
{
protected:
    void SetUp() override
    {
        ChoiceTest::SetUp();
        TestManager::Register();
        m_plain = MakeOwn(ThreeChoices(), "Plain.1");
        m_managed = Make(ThreeChoices(), "Managed.1");
        m_empty = Create("ChoiceTestChoice", "Empty.1");
    }

    /// Applies a configuration of these items.
    long Apply(const ORXISpecObject_var& iObject, const std::string& iItems)
    {
        m_configurations.reset();
        m_configurations.emplace(std::vector<std::string>{
            Configuration("main", "[ " + iItems + " ]"),
            Configuration("kind", R"([ { "choices": "two,three", "default": "three", "display": "Kind" } ])")});
        return m_configurations->Apply(iObject, "main");
    }

    ORXISpecObject_var m_plain;
    ORXISpecObject_var m_managed;
    ORXISpecObject_var m_empty;

private:
    std::optional<Configurations> m_configurations;
};

// ---- the Choice -----------------------------------------------------------------------------------------------------

TEST_F(ChoiceItemTest, Choice_GetsListsDisplayTextAndDefaultAndLeavesARecord)
{
    EXPECT_EQ(Apply(m_empty, R"({ "type": "integer", "choices": "alpha,beta", "Startups": "TypeAlpha,TypeBeta",
                                  "default": "beta", "display": "Model" })"),
              S_OK);
    EXPECT_EQ(TextsOf(m_empty, "choices"), (Lines{"alpha", "beta"}));
    EXPECT_EQ(TextsOf(m_empty, "Startups"), (Lines{"TypeAlpha", "TypeBeta"}));
    EXPECT_EQ(ValueOf(m_empty, "display"), "Model");
    EXPECT_EQ(ValueOf(m_empty, "value"), "beta");
    EXPECT_EQ(SetFlagOf(m_empty, "value"), "false");
    EXPECT_EQ(DataTypeOf(m_empty), "TypeBeta");
    EXPECT_EQ(AllowedOf(m_empty), (Lines{"alpha", "beta"}));
    // Whatever type the item speaks of, what is recorded is a text.
    EXPECT_EQ(RecordsOf(m_empty), (Lines{"type=string path=value default=beta"}));
}

TEST_F(ChoiceItemTest, Choice_IsConfiguredBeforeTheRecordIsMade)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "b", "display": "Model" })"), S_OK);
    const Lines lines = Only(calls.Take(), {"write", "create", "insert", "dispatch"});
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "write Empty.1.choices = [a, b]");
    EXPECT_EQ(
        (Lines{lines.end() - 5, lines.end()}),
        (Lines{"create VYRCfdConfigItem ConfigItem", "write ConfigItem.type = string", "write ConfigItem.path = value",
               "write ConfigItem.default = b", "insert Empty.1/defaultManagement.configuration[1] = ConfigItem"}));
}

TEST_F(ChoiceItemTest, RecordOfTheValue_IsFoundAgainAsItsDefault)
{
    ASSERT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "b" })"), S_OK);
    m_model.DropExtensions();
    EXPECT_EQ(DefaultOf(m_empty, "value"), "b");
}

TEST_F(ChoiceItemTest, ChoiceWithoutStartups_LosesThoseThatItHad)
{
    ASSERT_EQ(ChoiceOf(m_plain)->Update(), S_OK);
    EXPECT_EQ(Apply(m_plain, R"({ "choices": "alpha,beta,gamma", "default": "alpha" })"), S_OK);
    EXPECT_EQ(TextsOf(m_plain, "Startups"), Lines{});
    EXPECT_EQ(DataTypeOf(m_plain), "");
}

TEST_F(ChoiceItemTest, ItemWithoutADefault_LeavesNoRecord)
{
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "display": "Model" })"), S_OK);
    EXPECT_EQ(TextsOf(m_empty, "choices"), (Lines{"a", "b"}));
    // There was no default that is a choice, so the first one takes over.
    EXPECT_EQ(ValueOf(m_empty, "value"), "a");
    EXPECT_EQ(RecordsOf(m_empty), Lines{});
    EXPECT_EQ(RecordsIn(m_model), 0);
}

TEST_F(ChoiceItemTest, ItemWithoutADisplayText_LeavesTheOldOne)
{
    Write(m_plain, "display", "Old");
    EXPECT_EQ(Apply(m_plain, R"({ "choices": "a,b,c", "Startups": ",,", "default": "a" })"), S_OK);
    EXPECT_EQ(ValueOf(m_plain, "display"), "Old");
}

TEST_F(ChoiceItemTest, DefaultThatIsNoChoice_GivesWayToTheFirstButIsRecordedAsItStands)
{
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "c" })"), S_OK);
    EXPECT_EQ(ValueOf(m_empty, "value"), "a");
    EXPECT_EQ(DefaultOf(m_empty, "value"), "a");
    EXPECT_EQ(RecordsOf(m_empty), (Lines{"type=string path=value default=c"}));
}

TEST_F(ChoiceItemTest, SetValueThatIsAChoice_Stays)
{
    ASSERT_EQ(ChoiceOf(m_plain)->SetChoice("gamma"), S_OK);
    EXPECT_EQ(Apply(m_plain, R"({ "choices": "gamma,alpha,beta", "Startups": "TypeGamma,TypeAlpha,TypeBeta",
                                  "default": "beta" })"),
              S_OK);
    EXPECT_EQ(ValueOf(m_plain, "value"), "gamma");
    EXPECT_EQ(SetFlagOf(m_plain, "value"), "true");
    EXPECT_EQ(DefaultOf(m_plain, "value"), "beta");
}

TEST_F(ChoiceItemTest, InsideABracket_WritesListsAndRecordAndForgetsTheDefault)
{
    const VYRICfdConfigurable_var bracket = ConfigurableOf(m_plain);
    ASSERT_EQ(bracket->StartConfiguration(), S_OK);
    EXPECT_EQ(Apply(m_plain, R"({ "choices": "a,b,c", "Startups": ",,", "default": "b" })"), S_OK)
        << "an update that is held back is no failure";
    EXPECT_EQ(TextsOf(m_plain, "choices"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(ValueOf(m_plain, "value"), "alpha");
    EXPECT_FALSE(HasCustomDefault(m_plain));
    EXPECT_EQ(RecordsOf(m_plain), (Lines{"type=string path=value default=b"}));
}

TEST_F(ChoiceItemTest, TwoItems_LeaveTwoRecordsAndTheSecondStands)
{
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "b" }, { "choices": "c,d", "default": "d" })"), S_OK);
    EXPECT_EQ(TextsOf(m_empty, "choices"), (Lines{"c", "d"}));
    EXPECT_EQ(ValueOf(m_empty, "value"), "d");
    EXPECT_EQ(RecordsOf(m_empty), (Lines{"type=string path=value default=b", "type=string path=value default=d"}));
}

TEST_F(ChoiceItemTest, NestedItem_SetsUpAChoiceThatLiesDeeper)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    EXPECT_EQ(Apply(owner, R"({ "path": "kind", "config": "kind" })"), S_OK);
    const ORXISpecObject_var kind = At(owner, "kind");
    EXPECT_EQ(TextsOf(kind, "choices"), (Lines{"two", "three"}));
    EXPECT_EQ(ValueOf(kind, "value"), "three");
    EXPECT_EQ(RecordsOf(kind), (Lines{"type=string path=value default=three"}));
    EXPECT_EQ(RecordsOf(owner), Lines{});
}

// ---- the path -------------------------------------------------------------------------------------------------------

struct Path
{
    const char* name;
    const char* path;
    std::string recorded;
};

void PrintTo(const Path& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class ChoicePathTest : public ChoiceItemTest, public testing::WithParamInterface<Path>
{
};

TEST_P(ChoicePathTest, Path_OnlyShapesTheRecord)
{
    EXPECT_EQ(
        Apply(m_empty, R"({ "path": ")" + std::string(GetParam().path) + R"(", "choices": "a,b", "default": "b" })"),
        S_OK);
    EXPECT_EQ(TextsOf(m_empty, "choices"), (Lines{"a", "b"})) << "the object itself is configured";
    EXPECT_EQ(ValueOf(m_empty, "value"), "b");
    EXPECT_EQ(RecordsOf(m_empty), (Lines{"type=string path=" + GetParam().recorded + " default=b"}));
}

TEST_P(ChoicePathTest, PathOnAnObjectThatIsNoChoice_LeadsNowhere)
{
    const ORXISpecObject_var owner = Create("ChoiceTestOwner", "Owner.1");
    EXPECT_EQ(Apply(owner, R"({ "path": ")" + std::string(GetParam().path) + R"(", "choices": "a,b" })"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spChoice", Walk)}));
    EXPECT_EQ(TextsOf(At(owner, "kind"), "choices"), (Lines{"one", "two"}));
}

const Path paths[] = {
    {"Empty", "", "value"},
    {"OfAComponent", "kind", "kind/value"},
    {"OfSegments", "a/b", "a/b/value"},
    {"OfTheValue", "value", "value/value"},
    {"OfASubFeature", "defaultManagement", "defaultManagement/value"},
    {"Slash", "/", "//value"},
};

INSTANTIATE_TEST_SUITE_P(Paths, ChoicePathTest, testing::ValuesIn(paths),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(ChoiceItemTest, RecordOfAPath_IsNotFoundAgainAsTheDefaultOfTheValue)
{
    ASSERT_EQ(Apply(m_plain, R"({ "path": "a/b", "choices": "alpha,beta,gamma",
                                  "Startups": "TypeAlpha,TypeBeta,TypeGamma", "default": "beta" })"),
              S_OK);
    EXPECT_EQ(DefaultOf(m_plain, "value"), "beta");
    m_model.DropExtensions();
    EXPECT_EQ(DefaultOf(m_plain, "value"), "alpha") << "as its type declares";
}

// ---- lists as they are read -----------------------------------------------------------------------------------------

struct ListText
{
    const char* name;
    /// The item's lists, as JSON members.
    const char* lists;
    Lines choices;
    Lines startups;
};

void PrintTo(const ListText& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class ChoiceListsTest : public ChoiceItemTest, public testing::WithParamInterface<ListText>
{
};

TEST_P(ChoiceListsTest, Lists_AreParts)
{
    EXPECT_EQ(Apply(m_empty, "{ " + std::string(GetParam().lists) + " }"), S_OK);
    EXPECT_EQ(TextsOf(m_empty, "choices"), GetParam().choices);
    EXPECT_EQ(TextsOf(m_empty, "Startups"), GetParam().startups);
}

const ListText listTexts[] = {
    {"OneChoice", R"("choices": "a")", {"a"}, {}},
    {"Blanks",
     R"("choices": " al pha , be  ta ", "Startups": " Type Alpha ,TypeBeta ")",
     {"alpha", "beta"},
     {"TypeAlpha", "TypeBeta"}},
    {"EmptyChoices", R"("choices": "")", {""}, {}},
    {"BlankChoices", R"("choices": "  ")", {""}, {}},
    {"ChoicesThatAreNoText", R"("choices": ["a", "b"])", {""}, {}},
    {"ChoicesThatAreNull", R"("choices": null)", {""}, {}},
    {"EmptyEntries", R"("choices": "a,,b")", {"a", "", "b"}, {}},
    {"EmptyStartups", R"("choices": "a", "Startups": "")", {"a"}, {""}},
    {"StartupsThatAreNoText", R"("choices": "a", "Startups": 5)", {"a"}, {""}},
    {"ChoiceTwice", R"("choices": "a,a", "Startups": "TypeAlpha,TypeBeta")", {"a", "a"}, {"TypeAlpha", "TypeBeta"}},
    {"MisspeltStartups", R"("choices": "a,b", "startups": "TypeAlpha,TypeBeta")", {"a", "b"}, {}},
};

INSTANTIATE_TEST_SUITE_P(Texts, ChoiceListsTest, testing::ValuesIn(listTexts),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

// ---- other keys of the item -----------------------------------------------------------------------------------------

TEST_F(ChoiceItemTest, OtherKeys_DoNothingBesideTheChoices)
{
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "b", "defaultAutoKey": "key", "value": "x", "list": true,
                                  "config": "kind", "condition": "value=b" })"),
              S_OK);
    EXPECT_EQ(TextsOf(m_empty, "choices"), (Lines{"a", "b"}));
    EXPECT_EQ(AutoFlagOf(m_empty, "value"), "absent");
    EXPECT_EQ(RecordsOf(m_empty), (Lines{"type=string path=value default=b"}));
}

// ---- Choice or manager ----------------------------------------------------------------------------------------------

TEST_F(ChoiceItemTest, ObjectThatIsBoth_IsAManagerWithoutStartups)
{
    ASSERT_EQ(ChoiceOf(m_managed)->Update(), S_OK);
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Apply(m_managed, R"({ "path": "a", "choices": "gamma,beta", "default": "beta", "display": "Model" })"),
              S_OK);
    EXPECT_EQ(Only(calls.Take(), {"manage"}), (Lines{"manage [gamma, beta] beta Model"}));
    EXPECT_EQ(TextsOf(m_managed, "choices"), (Lines{"gamma", "beta"}));
    EXPECT_EQ(TextsOf(m_managed, "Startups"), (Lines{"TypeGamma", "TypeBeta"})) << "as the type declares them";
    EXPECT_EQ(ValueOf(m_managed, "value"), "beta");
    EXPECT_EQ(RecordsOf(m_managed), (Lines{"type=string path=a/value default=beta"}));
    // The update between the writes of the two lists sees three startups beside two choices.
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() == startups.size()", "VYRCfdChoiceInstanceAdp::Update")}));
}

TEST_F(ChoiceItemTest, ObjectThatIsBoth_IsAChoiceWithStartups)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "one,two,three", "Startups": "TypeBeta,TypeBeta,", "default": "two" })"),
              S_OK);
    EXPECT_EQ(Only(calls.Take(), {"manage"}), Lines{});
    EXPECT_EQ(TextsOf(m_managed, "choices"), (Lines{"one", "two", "three"})) << "declared or not";
    EXPECT_EQ(ValueOf(m_managed, "value"), "two");
}

TEST_F(ChoiceItemTest, ObjectThatIsBoth_IsAChoiceAlsoWithEmptyStartups)
{
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "alpha,beta,gamma", "Startups": "", "default": "alpha" })"), E_FAIL);
    EXPECT_EQ(Only(calls.Take(), {"manage"}), Lines{});
    EXPECT_EQ(Reported(), (Records{Assertion(SizesOfConfigure, Configure), FailedCall(ConfigureCall, Walk)}))
        << "one empty startup for three choices";
    EXPECT_EQ(TextsOf(m_managed, "Startups"), (Lines{"TypeAlpha", "TypeBeta", "TypeGamma"}));
}

TEST_F(ChoiceItemTest, ObjectThatIsOnlyAManager_IsManaged)
{
    TestManager::Hooks().configure = [](const auto&) { return S_FALSE; };
    MakeFail("QueryInterface", "VYRICfdChoice");
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "alpha", "default": "alpha" })"), S_OK);
    EXPECT_EQ(RecordsOf(m_managed), (Lines{"type=string path=value default=alpha"}));
    EXPECT_GT(VYRStandalone::FaultsHit(), 0) << "it is asked for as a Choice all the same";
}

TEST_F(ChoiceItemTest, ObjectThatIsOnlyAManager_TakesNoStartups)
{
    MakeFail("QueryInterface", "VYRICfdChoice");
    VYRStandalone::CallRecorder calls;
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "alpha", "Startups": "TypeAlpha", "default": "alpha" })"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("spChoice", Walk)}));
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(ChoiceItemTest, ManagerThatIsNotAskedFor_LeavesTheChoice)
{
    MakeFail("QueryInterface", "VYRICfdChoiceMgr");
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "one,two", "default": "two" })"), S_OK);
    // Three startups stand beside two choices until they are cleared.
    EXPECT_EQ(Reported(), (Records{Assertion("choices.size() == startups.size()", "VYRCfdChoiceInstanceAdp::Update")}));
    EXPECT_EQ(TextsOf(m_managed, "choices"), (Lines{"one", "two"}));
}

TEST_F(ChoiceItemTest, ManagedObjectWithoutADefault_FailsByItsManager)
{
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "alpha,beta" })"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Assertion("defaultFound", Manage), FailedCall(ManageCall, Walk)}));
}

TEST_F(ChoiceItemTest, ManagedObject_TakesDeclaredChoicesOnly)
{
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "alpha,delta", "default": "alpha" })"), E_FAIL);
    EXPECT_EQ(Reported(), (Records{Error("Invalid choice delta", Manage), FailedCall(ManageCall, Walk)}));
}

// ---- failures -------------------------------------------------------------------------------------------------------

struct FailedItem
{
    const char* name;
    /// "Managed.1" or "Plain.1".
    bool isManaged;
    const char* item;
    Records reports;
    /// What the first list holds afterwards.
    Lines choices;
};

void PrintTo(const FailedItem& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.name;
}

class FailedChoiceTest : public ChoiceItemTest, public testing::WithParamInterface<FailedItem>
{
};

TEST_P(FailedChoiceTest, Failure_StopsTheWalkAndWhatWasDoneStays)
{
    const ORXISpecObject_var choice = GetParam().isManaged ? m_managed : m_plain;
    AddRecord(m_model, choice, "display", "kept");
    EXPECT_EQ(Apply(choice, R"({ "path": "dataName", "default": "Pump" }, )" + std::string(GetParam().item) +
                                R"(, { "path": "display", "default": "never" })"),
              E_FAIL);
    EXPECT_EQ(Reported(), GetParam().reports);
    EXPECT_EQ(ValueOf(choice, "dataName"), "Pump");
    EXPECT_EQ(TextsOf(choice, "choices"), GetParam().choices);
    EXPECT_EQ(RecordsOf(choice), (Lines{"path=display default=kept"})) << "the list is not written";
    EXPECT_NE(DefaultOf(choice, "display"), "never");
}

const Lines three{"alpha", "beta", "gamma"};

const FailedItem failedItems[] = {
    {"StartupsOfAnotherLength",
     false,
     R"({ "choices": "a,b", "Startups": "TypeAlpha", "default": "a" })",
     {Assertion(SizesOfConfigure, Configure), FailedCall(ConfigureCall, Walk)},
     three},
    {"UndeclaredChoice",
     true,
     R"({ "choices": "beta,50%d", "default": "beta" })",
     {Error("Invalid choice 50%d", Manage), FailedCall(ManageCall, Walk)},
     three},
    {"EmptyChoiceOfAManager",
     true,
     R"({ "choices": "", "default": "alpha" })",
     {Error("Invalid choice ", Manage), FailedCall(ManageCall, Walk)},
     three},
    {"DefaultOutside",
     true,
     R"({ "choices": "alpha,beta", "default": "gamma" })",
     {Assertion("defaultFound", Manage), FailedCall(ManageCall, Walk)},
     three},
};

INSTANTIATE_TEST_SUITE_P(Items, FailedChoiceTest, testing::ValuesIn(failedItems),
                         [](const auto& iInfo) { return std::string(iInfo.param.name); });

TEST_F(ChoiceItemTest, StatusOfTheManager_IsThatOfTheReport)
{
    TestManager::Hooks().configure = [](const auto&) { return E_NOTIMPL; };
    EXPECT_EQ(Apply(m_managed, R"({ "choices": "alpha", "default": "alpha" })"), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall(ManageCall, Walk, E_NOTIMPL)}));
}

TEST_F(ChoiceItemTest, FailedCreationOfTheRecord_StopsTheWalkWithTheChoiceConfigured)
{
    MakeFail("CreateBasicComponent", "VYRCfdConfigItem", E_NOTIMPL);
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "b" })"), E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall("ORXSimBCInitializeServices::CreateBasicComponent(\"VYRCfdConfigItem\", "
                                              "\"ConfigItem\", spCont, spConfigItem)",
                                              Walk, E_NOTIMPL)}));
    EXPECT_EQ(ValueOf(m_empty, "value"), "b");
}

TEST_F(ChoiceItemTest, CreationOfNoRecord_EndsTheItemInSilence)
{
    MakeFail("CreateBasicComponent", "VYRCfdConfigItem", S_OK, 1, 1);
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "b" }, { "path": "dataName", "default": "Pump" })"),
              S_OK);
    EXPECT_EQ(ValueOf(m_empty, "value"), "b");
    EXPECT_EQ(RecordsOf(m_empty), (Lines{"type= path=dataName default=Pump"}));
    EXPECT_EQ(VYRStandalone::FaultsHit(), 1);
}

struct FailedWrite
{
    const char* attribute;
    const char* call;
};

void PrintTo(const FailedWrite& iCase, std::ostream* ioStream)
{
    *ioStream << iCase.attribute;
}

class ChoiceRecordWriteTest : public ChoiceItemTest, public testing::WithParamInterface<FailedWrite>
{
};

TEST_P(ChoiceRecordWriteTest, FailedWrite_StopsTheWalkWithItsStatus)
{
    Plant("SetString", GetParam().attribute, "ConfigItem", E_NOTIMPL);
    EXPECT_EQ(Apply(m_empty, R"({ "choices": "a,b", "default": "b" }, { "path": "dataName", "default": "Pump" })"),
              E_NOTIMPL);
    EXPECT_EQ(Reported(), (Records{FailedCall(GetParam().call, Walk, E_NOTIMPL)}));
    EXPECT_EQ(RecordsOf(m_empty), Lines{});
    EXPECT_EQ(RecordsIn(m_model), 1) << "it stays in the model by itself";
    EXPECT_EQ(ValueOf(m_empty, "value"), "b");
    EXPECT_EQ(ValueOf(m_empty, "dataName"), "(none)");
}

const FailedWrite failedWrites[] = {
    {"type", R"(configItemAccess["type"].SetPlainString("string"))"},
    {"path", R"(configItemAccess["path"].SetPlainString(valuePath))"},
    {"default", R"(configItemAccess["default"].SetPlainString(defaultValue))"},
};

INSTANTIATE_TEST_SUITE_P(Writes, ChoiceRecordWriteTest, testing::ValuesIn(failedWrites),
                         [](const auto& iInfo) { return std::string(iInfo.param.attribute); });
} // namespace
