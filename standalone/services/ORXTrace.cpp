#include "ORXTrace.h"

#include "PrintfText.h"
#include "TraceRegistry.h"

namespace
{
const int ActiveFlag = 1;
}

ORXTrace::ORXTrace(const char* iName, const char* iDescription, ORXTraMode iMode, const char* iFile, int iLevel)
    : m_name(TraceRegistry::Instance().Keep(iName)), m_description(TraceRegistry::Instance().Keep(iDescription)),
      m_file(TraceRegistry::Instance().Keep(iFile)), m_active(iMode == ORXTraActive ? &ActiveFlag : nullptr),
      m_level(iLevel)
{
    TraceRegistry::Instance().Enter(this);
}

void ORXTrace::PrintText(const char* iText)
{
    TraceRegistry::Instance().Print(m_file, iText);
}

void ORXTrace::PrintFormatted(const char* iFormat, ...)
{
    std::va_list arguments;
    va_start(arguments, iFormat);
    const std::string text = FormatText(iFormat, arguments);
    va_end(arguments);
    TraceRegistry::Instance().Print(m_file, text);
}
