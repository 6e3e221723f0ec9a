#include "ReportTable.h"

#include "TestManager.h"

namespace
{
std::string In(const std::string& iOperation)
{
    return "VYRCfdConfigurator::" + iOperation;
}

const std::string Application = In("ApplyConfiguration");

/// A configurator over files of its own.
class Installation : public VYRCfdConfigurator
{
public:
    explicit Installation(std::vector<ORXUnicodeString> iFiles) : VYRCfdConfigurator(iFiles) {}
};

/// @param iText what stands in the one file; empty for no file
std::string Load(const std::string& iText, const std::function<HRESULT(VYRCfdConfigurator&)>& iUse)
{
    const TemporaryFolder folder;
    if (!iText.empty())
        folder.Write("reffiles/VYRCfdApp/flow.json", iText);
    VYRStandalone::SetOfficialVariable("ORXInstallPath", folder.Path());
    Installation installation({"flow.json"});
    const HRESULT status = iUse(installation);
    VYRStandalone::ResetOfficialVariable("ORXInstallPath");
    return AnswerOf(status);
}

HRESULT GetMap(VYRCfdConfigurator& ioConfigurator)
{
    VYRCfdConfigurationMap map;
    return ioConfigurator.GetConfigurationMap(map);
}

void AddLoading(ReportRows& ioRows)
{
    const Record missing = Error("Missing config file flow.json\n", In("LoadConfigs"));
    const Record invalid = Error("Invalid config file flow.json\n", In("LoadConfigs"));
    const Record behind = FailedCall("LoadConfigs()", In("GetConfigurationMap"));
    ioRows.push_back({missing,
                      [](ReportBench&) { return Load("", &GetMap); },
                      "E_FAIL",
                      {},
                      {behind},
                      R"("Missing config file %s\n")"});
    ioRows.push_back({invalid,
                      [](ReportBench&) { return Load("{", &GetMap); },
                      "E_FAIL",
                      {},
                      {behind},
                      R"("Invalid config file %s\n")"});
    ioRows.push_back({behind, [](ReportBench&) { return Load("", &GetMap); }, "E_FAIL", {missing}});
    ioRows.push_back({FailedCall("LoadConfigs()", Application),
                      [](ReportBench& ioBench) {
                          return Load("", [&](VYRCfdConfigurator& ioConfigurator) {
                              return static_cast<HRESULT>(ioConfigurator.ApplyConfiguration(ioBench.m_part, "test"));
                          });
                      },
                      "E_FAIL",
                      {missing}});
    ioRows.push_back({FailedCall("LoadConfigs()", In("GetConfigurationObject")),
                      {},
                      "",
                      {},
                      {},
                      "",
                      "Its one caller has loaded the files before."});
}

struct Case
{
    Record record;
    const char* items;
    const char* fault = "";
    const char* subject = "";
    const char* object = "";
    Records before = {};
};

/// Of an application to the part.
void Add(ReportRows& ioRows, const Case& iCase)
{
    ioRows.push_back({iCase.record,
                      [iCase](ReportBench& ioBench) {
                          // Its default management is there before anything fails.
                          const VYRIMpaDefaultManagementProtected_var management = DefaultManagementOf(ioBench.m_part);
                          if (*iCase.fault != '\0')
                              FailCall(iCase.fault, iCase.subject, iCase.object, Handed);
                          return AnswerOf(ioBench.Apply(ioBench.m_part, iCase.items));
                      },
                      AnswerOf(iCase.record.status), iCase.before});
}

constexpr const char* DefaultItem = R"([ { "path": "ratio", "type": "real", "default": "0.75" } ])";
constexpr const char* AutoItem =
    R"([ { "path": "ratio", "type": "real", "default": "0.75", "defaultAutoKey": "auto" } ])";
constexpr const char* ConditionalItem = R"([ { "path": "zone", "condition": "count=5", "config": "other" } ])";

void AddObjects(ReportRows& ioRows)
{
    ioRows.push_back({Assertion("ispObject != NULL_var", Application),
                      [](ReportBench& ioBench) { return AnswerOf(ioBench.Apply(ORXBaseUnknown_var(), DefaultItem)); },
                      "E_FAIL"});
    ioRows.push_back({Assertion("spDefMgmt != NULL_var", Application),
                      [](ReportBench& ioBench) {
                          return AnswerOf(ioBench.Apply(ioBench.Create("ReportZone", "Zone.3"), DefaultItem));
                      },
                      "E_FAIL"});
    Add(ioRows, {Assertion("spSpec", Application), DefaultItem, "QueryInterface", "ORXISpecObject", "Part.1"});
    Add(ioRows, {Assertion("spCont", Application), DefaultItem, "GetContainer"});
    ioRows.push_back({FailedCall("GetConfigurationObject(iConfigName, configObjectJSON)", Application),
                      [](ReportBench& ioBench) {
                          return AnswerOf(static_cast<HRESULT>(
                              Configurations({Configuration("test", "[]")}).Apply(ioBench.m_part, "other")));
                      },
                      "E_FAIL"});
    ioRows.push_back({Error("Configuration nesting too deep: test", Application),
                      [](ReportBench& ioBench) {
                          return AnswerOf(ioBench.Apply(ioBench.m_part, R"([ { "path": "", "config": "test" } ])"));
                      },
                      "S_OK",
                      {},
                      {},
                      R"("Configuration nesting too deep: %s")"});
    ioRows.push_back({Error("Too many nested configurations: leaf", Application),
                      [](ReportBench& ioBench) {
                          // With the outermost one, one more than a run may make.
                          std::string items = "[ { \"config\": \"leaf\" }";
                          for (int i = 1; i < 100000; ++i)
                              items += ", { \"config\": \"leaf\" }";
                          return AnswerOf(static_cast<HRESULT>(
                              Configurations({Configuration("test", items + " ]"), Configuration("leaf", "[]")})
                                  .Apply(ioBench.m_part, "test")));
                      },
                      "S_OK",
                      {},
                      {},
                      R"("Too many nested configurations: %s")"});
}

void AddItems(ReportRows& ioRows)
{
    Add(ioRows, {FailedCall("specAccess[path].SetStrings(valuesList)", Application),
                 R"([ { "path": "nowhere", "value": "lift, drag", "list": true } ])",
                 "",
                 "",
                 "",
                 {Error("No attribute nowhere", "VYRCfdObjectAccess::SetStrings")}});
    Add(ioRows, {FailedCall("ORXSimBCInitializeServices::CreateBasicComponent(\"VYRCfdConfigItem\", \"ConfigItem\", "
                            "spCont, spConfigItem)",
                            Application, Handed),
                 DefaultItem, "CreateBasicComponent"});
    Add(ioRows, {FailedCall("spDefMgmt->SetIsAuto(path, ORXTrue)", Application),
                 R"([ { "path": "", "default": "0.75", "defaultAutoKey": "auto" } ])"});
    Add(ioRows, {FailedCall("spDefMgmt->SetCustomDefault(path, defaultValue)", Application),
                 R"([ { "path": "nowhere", "default": "0.75" } ])",
                 "",
                 "",
                 "",
                 {Assertion("spParm", "VYRCfdDefaultManagementAdp::SetCustomDefault")}});
    Add(ioRows, {FailedCall("specAccess[\"defaultManagement\"][VYRCFDBASE(DefaultManagement, "
                            "configuration)].SetList(configItemsList)",
                            Application, Handed),
                 DefaultItem,
                 "InsertAtPosition",
                 "configuration",
                 "",
                 {FailedCall("_spAttr->InsertAtPosition(_spKey, spSpec, i)", "VYRCfdObjectAccess::SetList", Handed)}});
}

void AddRecords(ReportRows& ioRows)
{
    struct Written
    {
        const char* attribute;
        const char* call;
        const char* items;
    };
    for (const Written& written :
         {Written{"type", R"(configItemAccess["type"].SetPlainString(type))", DefaultItem},
          Written{"path", R"(configItemAccess["path"].SetPlainString(path))", DefaultItem},
          Written{"default", R"(configItemAccess["default"].SetPlainString(defaultValue))", DefaultItem},
          Written{"defaultAutoKey", R"(configItemAccess["defaultAutoKey"].SetPlainString(defaultAutoValue))", AutoItem},
          Written{"condition", R"(configItemAccess["condition"].SetPlainString(condition))", ConditionalItem},
          Written{"config", R"(configItemAccess["config"].SetPlainString(config))", ConditionalItem}})
        Add(ioRows, {FailedCall(written.call, Application, Handed), written.items, "SetString", written.attribute,
                     "ConfigItem"});
}

/// Choice items, on a Choice with a manager.
void AddChoiceItems(ReportRows& ioRows)
{
    const auto add = [&ioRows](const Record& iRecord, const char* iItems, const Records& iBefore,
                               const char* iAttribute = "") {
        ioRows.push_back({iRecord,
                          [=](ReportBench& ioBench) {
                              const ORXISpecObject_var choice = ioBench.Choice();
                              if (*iAttribute != '\0')
                                  FailCall("SetString", iAttribute, "ConfigItem", Handed);
                              return AnswerOf(ioBench.Apply(choice, iItems));
                          },
                          AnswerOf(iRecord.status), iBefore});
    };
    add(FailedCall("spChoice->Configure(choicesList, startupsList, defaultValue, display)", Application),
        R"([ { "choices": "alpha, beta", "Startups": "TypeAlpha", "default": "alpha" } ])",
        {Assertion("iStartups.size() == 0 || iStartups.size() == iChoices.size()",
                   "VYRCfdChoiceInstanceAdp::Configure")});
    add(FailedCall("spChoiceMgr->ConfigureChoiceMgr(choicesList, defaultValue, display)", Application),
        R"([ { "choices": "alpha, beta", "default": "gamma" } ])",
        {Assertion("defaultFound", "VYRCfdChoiceMgrAdp::ConfigureChoiceMgr")});
    constexpr const char* item = R"([ { "choices": "alpha,beta,gamma", "Startups": "TypeAlpha,TypeBeta,TypeGamma",
                                        "default": "alpha" } ])";
    add(FailedCall(R"(configItemAccess["type"].SetPlainString("string"))", Application, Handed), item, {}, "type");
    add(FailedCall(R"(configItemAccess["path"].SetPlainString(valuePath))", Application, Handed), item, {}, "path");
    Add(ioRows, {Assertion("spChoice", Application), R"([ { "choices": "alpha" } ])"});

    for (const char* arguments : {"value, valuesList", "choicesString, choicesList", "startupsString, startupsList"})
        ioRows.push_back(
            {FailedCall("VYRCfdUtilityMethods::ConvertStringToVector(" + std::string(arguments) + ")", Application),
             {},
             "",
             {},
             {},
             "",
             "Splitting a text cannot fail."});
}
} // namespace

void AddConfigurationReports(ReportRows& ioRows)
{
    AddLoading(ioRows);
    AddObjects(ioRows);
    AddItems(ioRows);
    AddRecords(ioRows);
    AddChoiceItems(ioRows);
}
