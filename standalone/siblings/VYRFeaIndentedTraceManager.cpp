#include "VYRFeaIndentedTraceManager.h"

#include <string>

#include "VYRFeaTraceManager.h"

namespace
{
thread_local int t_openScopes = 0;

std::string Indentation(int iSteps)
{
    constexpr int BlanksPerStep = 2;
    return std::string(static_cast<std::size_t>(iSteps > 0 ? iSteps * BlanksPerStep : 0), ' ');
}
} // namespace

void VYRFeaIndentedTraceManager::Open(const char*, int, int iLevel)
{
    m_channel->TraPrint("%s> %s [%d]\n", Indentation(t_openScopes).c_str(), m_function, iLevel);
    ++t_openScopes;
}

void VYRFeaIndentedTraceManager::Close()
{
    --t_openScopes;
    m_channel->TraPrint("%s< %s\n", Indentation(t_openScopes).c_str(), m_function);
}

void VYRFeaIndentedTraceManager::PrintDebugIndent(int iExtra)
{
    ORXTrace* channel = VYRFeaTraceManager::_Debug;
    if (channel != nullptr && channel->IsActive())
        channel->TraPrint(Indentation(t_openScopes + iExtra).c_str());
}
