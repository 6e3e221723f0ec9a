#include "VYRCfdTraceManager.h"

#include <new>

#include "ORXEnvironment.h"
#include "ORXString.h"
#include "ORXUnicodeString.h"

ORXTrace* VYRCfdTraceManager::_NullTrace = nullptr;
ORXTrace* VYRCfdTraceManager::_Debug = nullptr;
ORXTrace* VYRCfdTraceManager::_Features = nullptr;
ORXTrace* VYRCfdTraceManager::_Validity = nullptr;
ORXTrace* VYRCfdTraceManager::_Sim = nullptr;
ORXTrace* VYRCfdTraceManager::_JS = nullptr;
ORXTrace* VYRCfdTraceManager::_Decorate = nullptr;
ORXTrace* VYRCfdTraceManager::_Json = nullptr;
ORXTrace* VYRCfdTraceManager::_UI = nullptr;
ORXTrace* VYRCfdTraceManager::_Test = nullptr;

ORXTraControle* VYRCfdTraceManager::_ControlDebug = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlFeatures = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlValidity = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlSim = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlJS = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlDecorate = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlJson = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlUI = nullptr;
ORXTraControle* VYRCfdTraceManager::_ControlTest = nullptr;

namespace
{
constexpr int LongestName = 8;
constexpr int AllLevels = 1024;

/// The number that a user gave, as the channel's maximum. Users write the levels as they stand in the code; the scopes
/// ask for 100 more.
int StoredLevel(int iNumber)
{
    if (iNumber >= 3 && iNumber <= 102)
        return iNumber + 100;
    if (iNumber == 2 || (iNumber >= 103 && iNumber <= AllLevels))
        return iNumber;
    return AllLevels;
}
} // namespace

int VYRCfdTraceManager::Initialize()
{
    InitTrace("DEBUG", "VYRELA CFD debug traces", _Debug, _ControlDebug);
    InitTrace("FEATURES", "VYRELA CFD feature traces", _Features, _ControlFeatures);
    InitTrace("SIM", "VYRELA CFD sim traces", _Sim, _ControlSim);
    InitTrace("VALIDITY", "VYRELA CFD validity traces", _Validity, _ControlValidity);
    InitTrace("JS", "VYRELA CFD JavaScript traces", _JS, _ControlJS);
    InitTrace("DECORATE", "VYRELA CFD Decoration traces", _Decorate, _ControlDecorate);
    InitTrace("JSON", "VYRELA CFD Json Streaming traces", _Json, _ControlJson);
    InitTrace("UI", "VYRELA CFD UI Streaming traces", _UI, _ControlUI);
    InitTrace("TEST", "VYRELA CFD Test Streaming traces", _Test, _ControlTest);
    return 1;
}

void VYRCfdTraceManager::InitTrace(const char* name, const char* description, ORXTrace*& trace,
                                   ORXTraControle*& control)
{
    if (ORXUnicodeString(name).GetLengthInChar() > LongestName)
        return;

    const ORXUnicodeString variable = ORXUnicodeString("VYRCFDTRACES_") + name;
    ORXUnicodeString channelValue = ORXGetEnv(variable);
    const ORXUnicodeString globalValue = ORXGetEnv("VYRCFDTRACES_ALL");

    // Only one character may stand before "FILE": a value that begins with it is left alone, and is no number below.
    if (channelValue.SearchSubString("FILE", 0, 1) == 1)
        channelValue = channelValue.SubString(4, channelValue.GetLengthInChar() - 4);

    int number = -1;
    if (!channelValue.IsEmpty())
        channelValue.ConvertToNum(&number, "%d");
    else if (!globalValue.IsEmpty())
        globalValue.ConvertToNum(&number, "%d");

    const bool isActive = !channelValue.IsEmpty() || !globalValue.IsEmpty();
    const ORXString traceName = ORXString("CFD_") + name;
    trace = new (std::nothrow)
        ORXTrace(traceName, description, isActive ? ORXTraActive : ORXTraSilent, "STDOUT", StoredLevel(number));
    control = new (std::nothrow) ORXTraControle(traceName);
}
