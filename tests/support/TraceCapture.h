#ifndef TraceCapture_H
#define TraceCapture_H

/**
 * @file
 * What is printed on trace channels while a capture lives.
 */

#include <string>
#include <utility>
#include <vector>

#include "VYRStandaloneServices.h"

/// One at a time; the standard output is restored at its end.
class TraceCapture
{
public:
    TraceCapture()
    {
        VYRStandalone::RedirectTraces([this](const std::string& iText) { m_texts.push_back(iText); });
    }
    ~TraceCapture() { VYRStandalone::RedirectTraces({}); }
    TraceCapture(const TraceCapture&) = delete;
    TraceCapture& operator=(const TraceCapture&) = delete;

    /// The texts in their order, as they were handed over, and none left.
    std::vector<std::string> Take() { return std::exchange(m_texts, {}); }

private:
    std::vector<std::string> m_texts;
};

#endif
