#include <utility>

#include "InstrumentState.h"
#include "VYRStandaloneInstruments.h"

namespace VYRStandalone
{
class CallRecorderAccess
{
public:
    static void Append(CallRecorder& ioRecorder, const std::string& iLine) { ioRecorder.m_lines.push_back(iLine); }
    static CallRecorder* Outer(const CallRecorder& iRecorder) { return iRecorder.m_outer; }
};

CallRecorder::CallRecorder() : m_outer(static_cast<CallRecorder*>(InstrumentState::Recorder()))
{
    InstrumentState::SetRecorder(this);
}

CallRecorder::~CallRecorder()
{
    InstrumentState::SetRecorder(m_outer);
}

std::vector<std::string> CallRecorder::Take()
{
    return std::exchange(m_lines, {});
}

void RecordLine(const std::string& iLine)
{
    Instruments::Record(iLine);
}

void Instruments::Record(const std::string& iLine)
{
    for (CallRecorder* recorder = static_cast<CallRecorder*>(s_recorder); recorder != nullptr;
         recorder = CallRecorderAccess::Outer(*recorder))
        CallRecorderAccess::Append(*recorder, iLine);
}
} // namespace VYRStandalone
