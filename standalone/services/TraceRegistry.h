#ifndef TraceRegistry_H
#define TraceRegistry_H

/**
 * @file
 * All trace channels of the process, and where their lines go.
 */

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

class ORXTrace;

/// Made on first use and never destroyed, as the channels themselves. May be used from several threads.
class TraceRegistry
{
public:
    using Sink = std::function<void(const std::string& iText)>;

    static TraceRegistry& Instance();

    /// A copy of the text that lives until the process ends; null gives "".
    const char* Keep(const char* iText);

    /// Makes a channel known by its name; of several of one name the last counts.
    void Enter(ORXTrace* iChannel);

    /// Borrowed, valid until the process ends; null for an unknown name.
    ORXTrace* Find(const char* iName);

    /// An empty sink restores the output that the channels name.
    void Redirect(Sink iSink);

    /// Hands the text to the sink, otherwise to the file; "STDOUT" is the standard output, any other name a file that
    /// is appended to. One text at a time; a sink may itself print.
    void Print(const char* iFile, const std::string& iText);

private:
    std::recursive_mutex m_mutex;
    std::set<std::string> m_texts;
    /// Also those that a later one of the same name hides: whoever made them holds them still.
    std::vector<ORXTrace*> m_channels;
    std::map<std::string, ORXTrace*> m_byName;
    std::shared_ptr<Sink> m_sink;
};

#endif
