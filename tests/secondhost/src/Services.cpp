/**
 * @file
 * Errors, traces and the environment.
 */

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "Component.h"
#include "ORXEnvironment.h"
#include "ORXTrace.h"
#include "SecondHost.h"
#include "VYRFeaErrorManager.h"
#include "VYRFeaIndentedTraceManager.h"
#include "VYRFeaTraceManager.h"

namespace
{
thread_local std::vector<std::string> reports;

void Report(const char* iKind, const char* iText, const char* iFunction, long iStatus)
{
    reports.push_back(std::string(iKind) + " \"" + iText + "\" " + iFunction + ' ' + std::to_string(iStatus));
}

std::string Print(const char* iFormat, std::va_list iArguments)
{
    char text[1024];
    std::vsnprintf(text, sizeof text, iFormat, iArguments);
    return text;
}

int depth = 0;
} // namespace

std::vector<std::string> SecondHost::TakeReports()
{
    return std::exchange(reports, {});
}

void VYRFeaErrorManager::SetErrorStatus(unsigned char) {}

void VYRFeaErrorManager::CreateAssertionError(const char*, const char* iFunction, int, const char* iCondition)
{
    Report("assertion", iCondition, iFunction, E_FAIL);
}

HRESULT VYRFeaErrorManager::CreateErrorOnCall(const char*, const char* iFunction, int, const char* iExpression,
                                              long iStatus)
{
    Report("call", iExpression, iFunction, iStatus);
    return static_cast<HRESULT>(iStatus);
}

void VYRFeaErrorManager::RecordError(const char*, const char* iFunction, int, const char* iMessage)
{
    Report("error", iMessage, iFunction, E_FAIL);
}

void VYRFeaErrorManager::RecordFormattedError(const char*, const char* iFunction, int, const char* iFormat, ...)
{
    std::va_list arguments;
    va_start(arguments, iFormat);
    Report("error", Print(iFormat, arguments).c_str(), iFunction, E_FAIL);
    va_end(arguments);
}

ORXTrace* VYRFeaTraceManager::_Debug = nullptr;

// The texts are the caller's, and channels outlive them.
ORXTrace::ORXTrace(const char* iName, const char* iDescription, ORXTraMode iMode, const char* iFile, int iLevel)
    : m_name(strdup(iName)), m_description(strdup(iDescription)), m_file(strdup(iFile)), m_active(new int(iMode)),
      m_level(iLevel)
{
}

void ORXTrace::PrintText(const char* iText)
{
    std::fputs(iText, stdout);
}

void ORXTrace::PrintFormatted(const char* iFormat, ...)
{
    std::va_list arguments;
    va_start(arguments, iFormat);
    PrintText(Print(iFormat, arguments).c_str());
    va_end(arguments);
}

// Without a channel the maximum level reads as 0.
ORXTraControle::ORXTraControle(const char*) : m_channel(nullptr) {}

void VYRFeaIndentedTraceManager::Open(const char*, int, int iLevel)
{
    m_channel->TraPrint("%s> %s [%d]\n", std::string(static_cast<std::size_t>(2 * depth++), ' ').c_str(), m_function,
                        iLevel);
}

void VYRFeaIndentedTraceManager::Close()
{
    m_channel->TraPrint("%s< %s\n", std::string(static_cast<std::size_t>(2 * --depth), ' ').c_str(), m_function);
}

void VYRFeaIndentedTraceManager::PrintDebugIndent(int) {}

const char* ORXGetEnv(const char* iName)
{
    return std::getenv(iName);
}

const char* ORXGetOfficialVariable(const char* iName)
{
    return std::getenv(iName);
}
