#include "TraceRegistry.h"

#include <cstdio>
#include <cstring>

#include "ORXTrace.h"
#include "VYRStandaloneServices.h"

namespace
{
void WriteAtOnce(std::FILE* iFile, const std::string& iText)
{
    std::fwrite(iText.data(), 1, iText.size(), iFile);
    std::fflush(iFile);
}
} // namespace

TraceRegistry& TraceRegistry::Instance()
{
    static auto* const registry = new TraceRegistry;
    return *registry;
}

const char* TraceRegistry::Keep(const char* iText)
{
    const std::lock_guard lock(m_mutex);
    return m_texts.emplace(iText != nullptr ? iText : "").first->c_str();
}

void TraceRegistry::Enter(ORXTrace* iChannel)
{
    const std::lock_guard lock(m_mutex);
    m_channels.push_back(iChannel);
    m_byName[iChannel->Name()] = iChannel;
}

ORXTrace* TraceRegistry::Find(const char* iName)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_byName.find(iName != nullptr ? iName : "");
    return found != m_byName.end() ? found->second : nullptr;
}

void TraceRegistry::Redirect(Sink iSink)
{
    const std::lock_guard lock(m_mutex);
    m_sink = iSink ? std::make_shared<Sink>(std::move(iSink)) : nullptr;
}

void TraceRegistry::Print(const char* iFile, const std::string& iText)
{
    const std::lock_guard lock(m_mutex);
    // Held here, since a sink may replace itself.
    if (const std::shared_ptr<Sink> sink = m_sink)
    {
        (*sink)(iText);
        return;
    }
    if (std::strcmp(iFile, "STDOUT") == 0)
    {
        WriteAtOnce(stdout, iText);
        return;
    }
    if (std::FILE* file = std::fopen(iFile, "a"))
    {
        WriteAtOnce(file, iText);
        std::fclose(file);
    }
}

namespace VYRStandalone
{
void RedirectTraces(std::function<void(const std::string& iText)> iSink)
{
    TraceRegistry::Instance().Redirect(std::move(iSink));
}
} // namespace VYRStandalone
