#ifndef VYRCfdTraceManager_H
#define VYRCfdTraceManager_H

/**
 * @file
 * The trace channels of the module and of the modules around it.
 */

#include "ORXTrace.h"
#include "VYRCfdBaseExport.h"

/**
 * Holder of the nine channels. They are made once, when the library is loaded, from the environment: a channel is
 * switched on by "VYRCFDTRACES_" and its name, or by "VYRCFDTRACES_ALL", whose number sets the depth of the function
 * scopes. A number from 3 to 102 prints the scopes up to that level, 2 prints none, everything else prints all. They
 * never change afterwards and live until the process ends.
 */
class VYRCfdBaseExport VYRCfdTraceManager
{
public:
    /// The silent channel: null for the life of the library.
    static ORXTrace* _NullTrace;
    /// Channel of what goes wrong in silence: paths that lead nowhere, errors that a cursor carries on.
    static ORXTrace* _Debug;
    /// Channel of all function scopes of the module.
    static ORXTrace* _Features;
    /// The other channels, each switched on by a variable of its name. Null where there was no memory.
    /// @{
    static ORXTrace* _Validity;
    static ORXTrace* _Sim;
    static ORXTrace* _JS;
    static ORXTrace* _Decorate;
    static ORXTrace* _Json;
    static ORXTrace* _UI;
    static ORXTrace* _Test;
    /// @}

    /// The control of the channel of the same name, which knows its level.
    /// @{
    static ORXTraControle* _ControlDebug;
    static ORXTraControle* _ControlFeatures;
    static ORXTraControle* _ControlValidity;
    static ORXTraControle* _ControlSim;
    static ORXTraControle* _ControlJS;
    static ORXTraControle* _ControlDecorate;
    static ORXTraControle* _ControlJson;
    static ORXTraControle* _ControlUI;
    static ORXTraControle* _ControlTest;
    /// @}

    /// Sets up the nine channels; called when the library is loaded. @return 1
    static int Initialize();

protected:
    /**
     * Sets up one channel.
     * @param name at most 8 characters; a longer one leaves both pointers as they were
     * @param trace, control receive the new objects, which live until the process ends; null where the allocation fails
     */
    static void InitTrace(const char* name, const char* description, ORXTrace*& trace, ORXTraControle*& control);
};

#endif
