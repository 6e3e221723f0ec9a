#include "ReportTable.h"

namespace
{
const std::string Adapter = "VYRCfdChoiceInstanceAdp::";

std::string In(const std::string& iOperation)
{
    return Adapter + iOperation;
}

using Call = std::string (*)(TestChoice& ioChoice);

std::string Update(TestChoice& ioChoice)
{
    return AnswerOf(ioChoice.Update(""));
}

std::string Configure(TestChoice& ioChoice)
{
    return AnswerOf(ioChoice.Configure(Texts({"alpha"}), Texts({"TypeAlpha"}), "alpha", "Model"));
}

std::string ConfigureOddly(TestChoice& ioChoice)
{
    return AnswerOf(ioChoice.Configure(Texts({"alpha", "beta"}), Texts({"TypeAlpha"}), "alpha", "Model"));
}

std::string Select(TestChoice& ioChoice)
{
    return AnswerOf(ioChoice.SetChoice("beta"));
}

std::string Selected(TestChoice& ioChoice)
{
    ORXUnicodeString choice;
    return AnswerOf(ioChoice.GetChoice(choice));
}

std::string Display(TestChoice& ioChoice)
{
    ORXUnicodeString display;
    return AnswerOf(ioChoice.GetDefaultDisplay(display));
}

std::string Listed(TestChoice& ioChoice)
{
    std::vector<ORXUnicodeString> choices;
    return AnswerOf(ioChoice.GetListOfChoices(choices));
}

std::string MakeData(TestChoice& ioChoice)
{
    bool isChanged = false;
    return AnswerOf(ioChoice.BaseUpdateDataForStartup("TypeAlpha", isChanged));
}

std::string NameData(TestChoice& ioChoice)
{
    ORXUnicodeString name;
    return AnswerOf(ioChoice.BaseGetInstanceName(
        VYRCfdObjectAccess(ORXBaseUnknown_var::Share(ioChoice.GetImpl(0))), "TypeAlpha", name));
}

struct Case
{
    Record record;
    Call call;
    const char* fault = "";
    const char* subject = "";
    Records before = {};
    Records behind = {};
    int number = 1;
    const char* object = "Choice.1";
};

/// On a Choice that has not been updated, in a bracket, so that writes run no updates.
void Add(ReportRows& ioRows, const Case& iCase)
{
    ioRows.push_back({iCase.record,
                      [iCase](ReportBench& ioBench) {
                          TestChoice& choice = TestChoice::Of(ioBench.Choice());
                          if (iCase.call != &Update)
                              choice.StartConfiguration();
                          if (*iCase.fault != '\0')
                              FailCall(iCase.fault, iCase.subject, iCase.object, Handed, iCase.number);
                          return iCase.call(choice);
                      },
                      AnswerOf(iCase.record.status), iCase.before, iCase.behind});
}

Record NoParameter(const char* iOperation)
{
    return Assertion("spParm", std::string("VYRCfdObjectAccess::") + iOperation);
}

Record NoKey(const char* iOperation)
{
    return Error("Null key", std::string("VYRCfdObjectAccess::") + iOperation);
}

void AddOperations(ReportRows& ioRows)
{
    Add(ioRows, {Assertion("iStartups.size() == 0 || iStartups.size() == iChoices.size()", In("Configure")),
                 &ConfigureOddly});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, choices)].SetStrings(iChoices)", In("Configure")), &Configure,
                 "Get", "choices", {NoKey("SetStrings")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, Startups)].SetStrings(iStartups)", In("Configure")), &Configure,
                 "Get", "Startups", {NoKey("SetStrings")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, display)].SetString(iDisplay)", In("Configure")), &Configure,
                 "GetParm", "display", {NoParameter("SetString")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, value)].SetString(iChoice)", In("SetChoice")), &Select,
                 "GetParm", "value", {NoParameter("SetString")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, value)].GetString(choice)", In("GetChoice")), &Selected,
                 "GetParm", "value", {NoParameter("GetString")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, display)].GetString(defaultDisplay)", In("GetDefaultDisplay")),
                 &Display, "GetParm", "display", {NoParameter("GetString")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, choices)].GetStrings(oListChoices)", In("GetListOfChoices")),
                 &Listed, "Get", "choices", {NoKey("GetStrings")}});
}

void AddData(ReportRows& ioRows)
{
    const Record noName = FailedCall("iObjectAccess[VYRCFDBASE(Choice, dataName)].GetString(instanceName)",
                                     In("GetInstanceName"));
    Add(ioRows, {noName, &NameData, "GetParm", "dataName", {NoParameter("GetString")}});
    Add(ioRows, {FailedCall("GetInstanceName(access, iStartup, instanceName)", In("UpdateDataForStartup")), &MakeData,
                 "GetParm", "dataName", {NoParameter("GetString"), noName}});
    // The first cast is that of the cursor.
    Add(ioRows, {Assertion("spAttrAccess", In("UpdateDataForStartup")), &MakeData, "QueryInterface",
                 "ORXISpecAttrAccess", {}, {}, 2});
    Add(ioRows, {Assertion("spSpecObj", In("UpdateDataForStartup")), &MakeData, "QueryInterface", "ORXISpecObject"});
    Add(ioRows, {FailedCall("spAttrAccess->SetSpecObject(VYRCFDBASE(Choice, Data)(spAttrAccess), spSubCompSpecObj)",
                            In("UpdateDataForStartup"), Handed),
                 &MakeData, "SetSpecObject", "Data"});
}

void AddUpdateReads(ReportRows& ioRows)
{
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, value)].GetString(value)", In("Update")), &Update, "GetParm",
                 "value", {NoParameter("GetString")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, choices)].GetStrings(choices)", In("Update")), &Update, "Get",
                 "choices", {NoKey("GetStrings")}});
    Add(ioRows, {FailedCall("access[VYRCFDBASE(Choice, Startups)].GetStrings(startups)", In("Update")), &Update, "Get",
                 "Startups", {NoKey("GetStrings")}});
    Add(ioRows, {Assertion("spDefMgmt", In("Update")), &Update, "QueryInterface", "VYRIMpaDefaultManagementProtected"});
    Add(ioRows, {FailedCall("spDefMgmt->GetDefault(\"value\", spDefVal)", In("Update")), &Update, "GetStartup", "",
                 {Assertion("parentSU", "VYRCfdDefaultManagementAdp::GetDefault")}});
    // The first asks for the parameter to read the value.
    Add(ioRows, {Assertion("spParm", In("Update")), &Update, "GetParm", "value", {}, {}, 2});
    for (const auto& [choices, text] :
         {std::pair<Lines, const char*>{{}, "choices.size() > 0"}, {{"alpha"}, "choices.size() == startups.size()"}})
        ioRows.push_back({Assertion(text, In("Update")),
                          [declared = choices](ReportBench& ioBench) {
                              ChoiceDeclaration declaration{declared, {}, "alpha", "", ""};
                              if (!declared.empty())
                                  declaration.startups = {"TypeAlpha", "TypeBeta"};
                              return AnswerOf(ChoiceOf(ioBench.Choice(declaration))->Update());
                          },
                          "E_FAIL"});
    ioRows.push_back({Assertion("spDefVal", In("Update")),
                      [](ReportBench& ioBench) {
                          const ORXISpecObject_var choice = ioBench.Choice();
                          FailCall("GetValue", "value", StartupPathOf(choice));
                          return AnswerOf(ChoiceOf(choice)->Update());
                      },
                      "E_FAIL"});
}

void AddUpdateSteps(ReportRows& ioRows)
{
    ioRows.push_back({Assertion("manip", In("Update")),
                      [](ReportBench& ioBench) {
                          const ORXISpecObject_var choice = ioBench.Choice();
                          FailCall("CreateManipulator", "value");
                          return AnswerOf(ChoiceOf(choice)->Update());
                      },
                      "E_FAIL"});
    ioRows.push_back({FailedCall("UpdateDataForStartup(startup, dataChange)", In("Update"), Handed),
                      [](ReportBench& ioBench) {
                          TestChoice::Hooks().data = [](TestChoice&, const ORXUnicodeString&, bool&) { return Handed; };
                          return AnswerOf(ChoiceOf(ioBench.Choice())->Update());
                      },
                      HandedAnswer});
    ioRows.push_back({FailedCall("CompleteUpdate(wasValueChange, dataChange)", In("Update"), Handed),
                      [](ReportBench& ioBench) {
                          TestChoice::Hooks().complete = [](TestChoice&, bool, bool) { return Handed; };
                          return AnswerOf(ChoiceOf(ioBench.Choice())->Update());
                      },
                      HandedAnswer});
    ioRows.push_back({Assertion("pConfigurator", In("Update")), {}, "", {}, {}, "",
                      "The one configurator is made when it is first asked for, and never taken away."});
}
} // namespace

void AddChoiceReports(ReportRows& ioRows)
{
    AddOperations(ioRows);
    AddData(ioRows);
    AddUpdateReads(ioRows);
    AddUpdateSteps(ioRows);
}
