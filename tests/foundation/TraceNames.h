#ifndef TraceNames_H
#define TraceNames_H

/**
 * @file
 * The trace channels of the module, in the order in which they are set up.
 */

#include <cstdlib>
#include <string>

#include "VYRCfdTraceManager.h"

struct Channel
{
    const char* name;
    const char* description;
    ORXTrace*& trace;
    ORXTraControle*& control;
};

inline const Channel Channels[] = {
    {"DEBUG", "VYRELA CFD debug traces", VYRCfdTraceManager::_Debug, VYRCfdTraceManager::_ControlDebug},
    {"FEATURES", "VYRELA CFD feature traces", VYRCfdTraceManager::_Features, VYRCfdTraceManager::_ControlFeatures},
    {"SIM", "VYRELA CFD sim traces", VYRCfdTraceManager::_Sim, VYRCfdTraceManager::_ControlSim},
    {"VALIDITY", "VYRELA CFD validity traces", VYRCfdTraceManager::_Validity, VYRCfdTraceManager::_ControlValidity},
    {"JS", "VYRELA CFD JavaScript traces", VYRCfdTraceManager::_JS, VYRCfdTraceManager::_ControlJS},
    {"DECORATE", "VYRELA CFD Decoration traces", VYRCfdTraceManager::_Decorate, VYRCfdTraceManager::_ControlDecorate},
    {"JSON", "VYRELA CFD Json Streaming traces", VYRCfdTraceManager::_Json, VYRCfdTraceManager::_ControlJson},
    {"UI", "VYRELA CFD UI Streaming traces", VYRCfdTraceManager::_UI, VYRCfdTraceManager::_ControlUI},
    {"TEST", "VYRELA CFD Test Streaming traces", VYRCfdTraceManager::_Test, VYRCfdTraceManager::_ControlTest},
};

/// Value of the variable of a channel; the empty text also when it is unset, which is the same to the module.
inline std::string TraceVariable(const std::string& iChannel)
{
    const char* const value = std::getenv(("VYRCFDTRACES_" + iChannel).c_str());
    return value != nullptr ? value : "";
}

#endif
