#ifndef ChannelSwap_H
#define ChannelSwap_H

/**
 * @file
 * Listening to a trace channel of the module, whatever the environment switches on.
 */

#include <string>
#include <utility>
#include <vector>

#include "ORXTrace.h"
#include "VYRStandaloneServices.h"

/// Puts an active channel in the place of one of the module's, and collects what it prints, while it lives.
class ChannelSwap
{
public:
    /// @param ioChannel such as `VYRCfdTraceManager::_Debug`
    explicit ChannelSwap(ORXTrace*& ioChannel) : m_place(ioChannel), m_original(ioChannel)
    {
        VYRStandalone::RedirectTraces([this](const std::string& iText) { m_printed.push_back(iText); });
        m_place = ActiveChannel();
    }

    ~ChannelSwap()
    {
        m_place = m_original;
        VYRStandalone::RedirectTraces({});
    }

    ChannelSwap(const ChannelSwap&) = delete;
    ChannelSwap& operator=(const ChannelSwap&) = delete;

    /// What was printed since the last call, and none left.
    std::vector<std::string> Take() { return std::exchange(m_printed, {}); }

private:
    /// Channels are never destroyed, so there is one for all.
    static ORXTrace* ActiveChannel()
    {
        static ORXTrace* const channel = new ORXTrace("SWAPPED", "channel of a test", ORXTraActive, "STDOUT", 1024);
        return channel;
    }

    ORXTrace*& m_place;
    ORXTrace* m_original;
    std::vector<std::string> m_printed;
};

/// Of what a feature channel printed, the functions that were entered and whose name begins so: "F [LEVEL]" each.
inline std::vector<std::string> Entered(const std::vector<std::string>& iPrinted, const std::string& iName)
{
    std::vector<std::string> entered;
    for (const std::string& text : iPrinted)
    {
        const std::size_t start = text.find("> " + iName);
        if (start != std::string::npos)
            entered.push_back(text.substr(start + 2, text.find(']') - start - 1));
    }
    return entered;
}

#endif
