#include "CursorScenarios.h"

#include "ORXInterfaceIds.h"
#include "ORXListValORXBaseUnknown_var.h"
#include "ORXListValORXUnicodeString.h"

namespace
{
using Access = VYRCfdObjectAccess;
using Other = ORXISpecObject_var;
using TextVector = std::vector<ORXUnicodeString>;
using Call = std::function<std::string(const Access& iCursor, const Other& iOther)>;

template <class Value, HRESULT (Access::*Read)(Value&) const> Call Get()
{
    return [](const Access& iCursor, const Other&) {
        Value value{};
        return AnswerOf((iCursor.*Read)(value));
    };
}

template <class Value, HRESULT (Access::*Read)(Value&, int) const> Call Entry()
{
    return [](const Access& iCursor, const Other&) {
        Value value{};
        return AnswerOf((iCursor.*Read)(value, 2));
    };
}

template <bool (Access::*Ask)() const> Call Asked()
{
    return [](const Access& iCursor, const Other&) { return AnswerOf((iCursor.*Ask)()); };
}
} // namespace

void AddCursorReads(std::vector<ScenarioGroup>& ioGroups)
{
    constexpr Scenario::Kind reads = Scenario::Kind::Reads;
    AddCursorOperations(ioGroups, {{"GetPlainString", Get<ORXUnicodeString, &Access::GetPlainString>()},
                                   {"GetString", Get<ORXUnicodeString, &Access::GetString>()},
                                   {"GetInteger", Get<int, &Access::GetInteger>()},
                                   {"GetDouble", Get<double, &Access::GetDouble>()},
                                   {"GetBoolean", Get<bool, &Access::GetBoolean>()},
                                   {"GetString_Entry", Entry<ORXUnicodeString, &Access::GetString>()},
                                   {"GetInteger_Entry", Entry<int, &Access::GetInteger>()},
                                   {"GetDouble_Entry", Entry<double, &Access::GetDouble>()},
                                   {"GetBoolean_Entry", Entry<bool, &Access::GetBoolean>()}});
    AddCursorOperations(ioGroups, {{"IsString", Asked<&Access::IsString>()},
                                   {"IsInteger", Asked<&Access::IsInteger>()},
                                   {"IsDouble", Asked<&Access::IsDouble>()},
                                   {"IsBoolean", Asked<&Access::IsBoolean>()},
                                   {"IsEnum", Asked<&Access::IsEnum>()},
                                   {"IsList", Asked<&Access::IsList>()},
                                   {"IsObject", Asked<&Access::IsObject>()},
                                   {"IsObjectList", Asked<&Access::IsObjectList>()}});
    // A cursor that stands at no attribute fails in silence where objects are listed.
    AddCursorOperations(
        ioGroups,
        {{"GetListSize", Get<int, &Access::GetListSize>()},
         {"List",
          [](const Access& iCursor, const Other&) {
              std::vector<Access> objects;
              return AnswerOf(iCursor.List(objects, true));
          },
          reads, true},
         {"List_Handles",
          [](const Access& iCursor, const Other&) {
              ORXListValORXBaseUnknown_var objects;
              return AnswerOf(iCursor.List(objects));
          }},
         {"GetStrings", Get<TextVector, &Access::GetStrings>()},
         {"GetStrings_List", Get<ORXListValORXUnicodeString, &Access::GetStrings>()},
         {"GetDoubles", Get<std::vector<double>, &Access::GetDoubles>()},
         {"GetIntegers", Get<std::vector<int>, &Access::GetIntegers>()},
         {"GetBooleans", Get<std::vector<bool>, &Access::GetBooleans>()},
         {"CleanList", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.CleanList(IID_ORXIAlias)); },
          reads, true}});
}
