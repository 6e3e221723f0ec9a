#include "CursorScenarios.h"

#include "ORXKeySetVYRCfdBase.h"

namespace
{
using Access = VYRCfdObjectAccess;
using Other = ORXISpecObject_var;

void AddNames(std::vector<ScenarioGroup>& ioGroups)
{
    AddCursorOperations(
        ioGroups,
        {{"Get_Name", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get("count")); }},
         {"Get_Entry", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get("Zone.2")); }},
         {"Get_Type", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get("FaultZone")); }},
         {"Get_Number", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get("2")); }},
         {"Get_Nothing", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get("nowhere")); }},
         {"Get_NameAndIndex", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get("peers", 1)); }},
         {"Get_Index", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get(2)); }},
         {"Get_KeyFunction",
          [](const Access& iCursor, const Other&) {
              return AnswerOf(iCursor.Get(VYRCFDBASE(Values, defaultManagement), 0));
          }},
         {"Get_Choice", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Get("kind").Get("alpha")); }},
         {"Ref_Name", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.Ref("peer")); }},
         {"Ref_KeyFunction", [](const Access& iCursor,
                                const Other&) { return AnswerOf(iCursor.Ref(VYRCFDBASE(Values, defaultManagement))); }},
         {"GetByPath", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.GetByPath("zone/layers")); }},
         {"GetByPath_List",
          [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.GetByPath("zones/Zone.2/layers")); }},
         {"GetParent", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.GetParent()); }},
         {"ApplyCondition",
          [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.ApplyCondition("count>3")); }}});
}

void AddIdentity(std::vector<ScenarioGroup>& ioGroups)
{
    AddCursorOperations(
        ioGroups,
        {{"Construct", [](const Access&, const Other& iOther) { return AnswerOf(Access(ORXBaseUnknown_var(iOther))); }},
         {"Copy", [](const Access& iCursor, const Other&) { return AnswerOf(Access(iCursor)); }},
         {"Assign",
          [](const Access& iCursor, const Other& iOther) {
              Access assigned = iCursor;
              assigned = ORXBaseUnknown_var(iOther);
              return AnswerOf(assigned);
          }},
         {"Assign_Null",
          [](const Access& iCursor, const Other&) {
              Access assigned = iCursor;
              assigned = ORXBaseUnknown_var();
              return AnswerOf(assigned);
          }},
         {"IsNull", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.IsNull()); }},
         {"Equals", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor == Access(iCursor)); }},
         {"GetName",
          [](const Access& iCursor, const Other&) { return std::string(iCursor.GetName().CastToCharPtr()); }},
         {"GetID", [](const Access& iCursor, const Other&) { return std::string(iCursor.GetID().CastToCharPtr()); }},
         {"GetType",
          [](const Access& iCursor, const Other&) { return std::string(iCursor.GetType().CastToCharPtr()); }},
         {"IsSubTypeOf",
          [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.IsSubTypeOf("VYRCfdValues")); }},
         {"GetParm",
          [](const Access& iCursor, const Other&) { return std::string(!iCursor.GetParm() ? "null" : "found"); }}});
}
} // namespace

void AddCursorMoves(std::vector<ScenarioGroup>& ioGroups)
{
    AddNames(ioGroups);
    AddIdentity(ioGroups);
}
