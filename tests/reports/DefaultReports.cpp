#include "ReportTable.h"

#include "StandingAdapter.h"

namespace
{
constexpr const char* SubFeature = "Part.1/defaultManagement";

std::string In(const std::string& iOperation)
{
    return "VYRCfdDefaultManagementAdp::" + iOperation;
}

using Management = VYRIMpaDefaultManagementProtected;
using Call = std::string (*)(Management& ioManagement);

std::string IsSet(Management& ioManagement)
{
    unsigned char isSet = 7;
    return AnswerOf(ioManagement.IsSet("ratio", isSet));
}

std::string MarkSet(Management& ioManagement)
{
    return AnswerOf(ioManagement.SetIsSet("ratio", ORXTrue));
}

std::string HasAuto(Management& ioManagement)
{
    unsigned char has = 7;
    return AnswerOf(ioManagement.HasAuto("ratio", has));
}

std::string GetAuto(Management& ioManagement)
{
    unsigned char isAuto = 7;
    return AnswerOf(ioManagement.GetIsAuto("ratio", isAuto));
}

std::string MarkAuto(Management& ioManagement)
{
    return AnswerOf(ioManagement.SetIsAuto("ratio", ORXTrue));
}

template <int Number> std::string Default(Management& ioManagement)
{
    ORXICkeInst_var value;
    constexpr const char* names[] = {"ratio", "nowhere", "titles"};
    return AnswerOf(ioManagement.GetDefault(names[Number], value));
}

std::string SetDefault(Management& ioManagement)
{
    ORXUnicodeString text = "0.25";
    return AnswerOf(ioManagement.SetCustomDefault("ratio", text));
}

std::string Unset(Management& ioManagement)
{
    return AnswerOf(ioManagement.Unset("ratio"));
}

struct Case
{
    Record record;
    Call call;
    const char* fault = "";
    const char* subject = "";
    const char* object = "";
    int number = 1;
    std::string answer = "E_FAIL";
    Records before = {};
    /// The object has a record about the attribute.
    bool hasRecord = false;
};

/// Default management is there before anything fails.
void Add(ReportRows& ioRows, const Case& iCase)
{
    ioRows.push_back({iCase.record,
                      [iCase](ReportBench& ioBench) {
                          if (iCase.hasRecord)
                              AddRecord(ioBench.m_model, ioBench.m_part, "ratio", "0.75");
                          const VYRIMpaDefaultManagementProtected_var management = DefaultManagementOf(ioBench.m_part);
                          if (*iCase.fault != '\0')
                              FailCall(iCase.fault, iCase.subject, iCase.object, E_FAIL, iCase.number);
                          return iCase.call(*management.Pointer());
                      },
                      iCase.answer, iCase.before});
}

void AddFlags(ReportRows& ioRows)
{
    for (const auto& [name, call] : {std::pair<const char*, Call>{"IsSet", &IsSet},
                                     {"SetIsSet", &MarkSet},
                                     {"HasAuto", &HasAuto},
                                     {"GetIsAuto", &GetAuto},
                                     {"SetIsAuto", &MarkAuto},
                                     {"GetDefault", &Default<0>}})
    {
        Add(ioRows, {Assertion("spAttr", In(name)), call, "QueryInterface", "ORXISpecAttrAccess", SubFeature});
        Add(ioRows, {Assertion("spSpec", In(name)), call, "QueryInterface", "ORXISpecObject", SubFeature});
    }
    for (const auto& [name, call] :
         {std::pair<const char*, Call>{"IsSet", &IsSet}, {"SetIsSet", &MarkSet}, {"SetIsAuto", &MarkAuto}})
        Add(ioRows, {Assertion("pAttr", In(name)), call, "AddAttribute"});
    ioRows.push_back({FailedCall("spAttr->SetBoolean(spKey, iIsAuto)", In("SetIsAuto"), Handed),
                      [](ReportBench& ioBench) {
                          const VYRIMpaDefaultManagementProtected_var management = DefaultManagementOf(ioBench.m_part);
                          MarkAuto(*management.Pointer());
                          FailCall("SetBoolean", "ratio_isauto", "", Handed);
                          return MarkAuto(*management.Pointer());
                      },
                      HandedAnswer});
}

void AddDeclaredDefaults(ReportRows& ioRows)
{
    Add(ioRows, {Assertion("spParent", In("GetDefault")), &Default<0>, "QueryInterface", "ORXISpecObject", "Part.1"});
    Add(ioRows, {Assertion("parentSU", In("GetDefault")), &Default<0>, "GetStartup"});
    Add(ioRows, {Assertion("key", In("GetDefault")), &Default<1>});
    Add(ioRows, {Assertion("defaultParm", In("GetDefault")), &Default<2>});
    ioRows.push_back({Assertion("parentSUAttr", In("GetDefault")),
                      [](ReportBench& ioBench) {
                          const VYRIMpaDefaultManagementProtected_var management = DefaultManagementOf(ioBench.m_part);
                          FailCall("QueryInterface", "ORXISpecAttrAccess", StartupPathOf(ioBench.m_part));
                          return Default<0>(*management.Pointer());
                      },
                      "E_FAIL"});
}

/// Records that cannot be looked at make the default that of the start-up.
void AddRecords(ReportRows& ioRows)
{
    struct Fault
    {
        const char* check;
        const char* operation;
    };
    for (const Fault& fault : {Fault{"spParm", "GetParm"}, Fault{"spType", "GetType"},
                               Fault{"spParmFactory", "GetVolatileFactory"}, Fault{"spTempParm", "CreateParm"}})
    {
        Add(ioRows,
            {Assertion(fault.check, In("isConfigured")), &Default<0>, fault.operation, "", "", 1, "S_OK", {}, true});
        Add(ioRows, {Assertion(fault.check, In("SetCustomDefault")), &SetDefault, fault.operation});
    }
    ioRows.push_back({Assertion("m_defMgmt", In("isConfigured")),
                      [](ReportBench& ioBench) {
                          const StandingAdapter_var adapter =
                              StandingAdapter_var::Adopt(new StandingAdapter(ioBench.m_part));
                          ORXICkeInst_var value;
                          return AnswerOf(adapter->isConfigured("ratio", value) != ORXFalse);
                      },
                      "false"});
    ioRows.push_back(
        {FailedCall("dmAccess[VYRCFDBASE(DefaultManagement, configuration)].List(configItemsList)", In("isConfigured")),
         [](ReportBench& ioBench) {
             const VYRIMpaDefaultManagementProtected_var management = DefaultManagementOf(ioBench.m_part);
             FailCall("Get", "configuration");
             return Default<0>(*management.Pointer());
         },
         "S_OK",
         {Error("Null key", "VYRCfdObjectAccess::List")}});
}

void AddCustomDefaults(ReportRows& ioRows)
{
    Add(ioRows, {FailedCall("IsSet(iAttrName, isSet)", In("SetCustomDefault")),
                 &SetDefault,
                 "AddAttribute",
                 "",
                 "",
                 1,
                 "E_FAIL",
                 {Assertion("pAttr", In("IsSet"))}});
    Add(ioRows, {FailedCall("Unset(iAttrName)", In("SetCustomDefault")),
                 &SetDefault,
                 "GetValue",
                 "ratio",
                 "",
                 1,
                 "E_FAIL",
                 {Assertion("spVal", In("Unset"))}});
    Add(ioRows, {Assertion("spVal", In("Unset")), &Unset, "GetValue", "ratio", "Part.1"});

    const auto setDefault = [](ReportBench& ioBench, const char* iFault, const char* iSubject) {
        const ORXISpecObject_var choice = ioBench.Choice();
        const VYRIMpaDefaultManagementProtected_var management = DefaultManagementOf(choice);
        FailCall(iFault, iSubject, "Choice.1");
        ORXUnicodeString text = "beta";
        return AnswerOf(management->SetCustomDefault("value", text));
    };
    const std::string own = "VYRECfdChoiceDefaultManagement::SetCustomDefault";
    ioRows.push_back({FailedCall("VYRCfdDefaultManagementAdp::SetCustomDefault(iAttrName, iValue)", own),
                      [setDefault](ReportBench& ioBench) { return setDefault(ioBench, "GetParm", "value"); },
                      "E_FAIL",
                      {Assertion("spParm", In("SetCustomDefault"))}});
    ioRows.push_back(
        {Assertion("spChoice", own),
         [setDefault](ReportBench& ioBench) { return setDefault(ioBench, "QueryInterface", "VYRICfdChoice"); },
         "E_FAIL"});
}
} // namespace

void AddDefaultReports(ReportRows& ioRows)
{
    AddFlags(ioRows);
    AddDeclaredDefaults(ioRows);
    AddRecords(ioRows);
    AddCustomDefaults(ioRows);
}
