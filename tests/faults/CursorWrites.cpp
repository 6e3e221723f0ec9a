#include "CursorScenarios.h"

namespace
{
using Access = VYRCfdObjectAccess;
using Accesses = std::vector<Access>;
using Other = ORXISpecObject_var;

constexpr Scenario::Kind Writes = Scenario::Kind::Writes;
constexpr Scenario::Kind HandsOn = Scenario::Kind::HandsOn;

void AddValues(std::vector<ScenarioGroup>& ioGroups)
{
    AddCursorOperations(
        ioGroups,
        {{"SetPlainString",
          [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetPlainString("duct")); }, HandsOn},
         {"SetString", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetString("0.75")); }, Writes},
         {"SetInteger", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetInteger(1)); }, Writes},
         {"SetDouble", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetDouble(0.75)); }, Writes},
         {"SetBoolean", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetBoolean(false)); },
          Writes},
         {"SetString_Entry", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetString("duct", 2)); },
          HandsOn},
         {"SetInteger_Entry", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetInteger(1, 2)); },
          Writes},
         {"SetDouble_Entry", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetDouble(0.75, 2)); },
          Writes},
         {"SetBoolean_Entry",
          [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetBoolean(false, 1)); }, Writes},
         {"SetStrings",
          [](const Access& iCursor, const Other&) {
              return AnswerOf(iCursor.SetStrings(std::vector<ORXUnicodeString>{"duct", "a text that needs the heap"}));
          },
          Writes},
         {"SetStrings_List",
          [](const Access& iCursor, const Other&) {
              ORXListValORXUnicodeString texts;
              texts.Append("duct");
              return AnswerOf(iCursor.SetStrings(texts));
          },
          Writes}});
}

/// A cursor that stands at no attribute fails in silence.
void AddObjects(std::vector<ScenarioGroup>& ioGroups)
{
    AddCursorOperations(
        ioGroups,
        {{"SetList_Turned",
          [](const Access& iCursor, const Other&) {
              return AnswerOf(iCursor.SetList(Accesses{iCursor.Get(2), iCursor.Get(1)}));
          },
          Writes, true},
         {"SetList_Inserting",
          [](const Access& iCursor, const Other& iOther) {
              return AnswerOf(iCursor.SetList(Accesses{Access(ORXBaseUnknown_var(iOther)), iCursor.Get(1)}));
          },
          Writes, true},
         {"SetList_Handles",
          [](const Access& iCursor, const Other& iOther) {
              ORXListValORXBaseUnknown_var objects;
              objects.Append(iOther);
              return AnswerOf(iCursor.SetList(objects));
          },
          Writes, true},
         {"SetObject",
          [](const Access& iCursor, const Other& iOther) {
              return AnswerOf(iCursor.SetObject(ORXBaseUnknown_var(iOther), 0));
          },
          Writes, true},
         {"SetObject_Entry",
          [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.SetObject(ORXBaseUnknown_var(), 2)); },
          Writes, true},
         {"Remove", [](const Access& iCursor, const Other& iOther) { return AnswerOf(iCursor.Remove(iOther)); }, Writes,
          true},
         {"RemoveAll", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.RemoveAll()); }, Writes, true},
         {"RemovePosition", [](const Access& iCursor, const Other&) { return AnswerOf(iCursor.RemovePosition(2)); },
          Writes, true}});
}
} // namespace

void AddCursorWrites(std::vector<ScenarioGroup>& ioGroups)
{
    AddValues(ioGroups);
    AddObjects(ioGroups);
}
