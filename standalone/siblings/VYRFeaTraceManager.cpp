#include "VYRFeaTraceManager.h"

#include "ORXEnvironment.h"

namespace
{
/// Level of a channel that is not told otherwise: everything passes.
constexpr int HighestLevel = 1024;

ORXTrace* MakeDebugChannel()
{
    const char* wanted = ORXGetEnv("VYRFEATRACES_DEBUG");
    const ORXTraMode mode = wanted != nullptr && *wanted != '\0' ? ORXTraActive : ORXTraSilent;
    return new ORXTrace("FEA_DEBUG", "VYRELA feature debug traces", mode, "STDOUT", HighestLevel);
}
} // namespace

ORXTrace* VYRFeaTraceManager::_Debug = MakeDebugChannel();
