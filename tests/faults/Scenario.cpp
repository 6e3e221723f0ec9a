#include "Scenario.h"

#include <cstdio>

const std::vector<ScenarioGroup>& ScenarioGroups()
{
    static const std::vector<ScenarioGroup> groups = [] {
        std::vector<ScenarioGroup> made;
        AddCursorMoves(made);
        AddCursorReads(made);
        AddCursorWrites(made);
        AddConditionScenarios(made);
        AddDefaultScenarios(made);
        AddChoiceScenarios(made);
        AddManagerScenarios(made);
        AddConfigurationScenarios(made);
        AddFileScenarios(made);
        return made;
    }();
    return groups;
}

// Short enough to take no memory, where the text is not that of an error.

std::string AnswerOf(HRESULT iStatus)
{
    switch (iStatus)
    {
    case S_OK:
        return "S_OK";
    case S_FALSE:
        return "S_FALSE";
    case E_FAIL:
        return "E_FAIL";
    case E_NOTIMPL:
        return "E_NOTIMPL";
    default:
        char text[16];
        std::snprintf(text, sizeof(text), "0x%08x", static_cast<unsigned int>(iStatus));
        return text;
    }
}

std::string AnswerOf(bool iAnswer)
{
    return iAnswer ? "true" : "false";
}

std::string AnswerOf(const VYRCfdObjectAccess& iCursor)
{
    if (iCursor.HasError())
        return std::string("error ") + iCursor.GetError().CastToCharPtr();
    return !iCursor.Self() ? "nothing" : "found";
}
