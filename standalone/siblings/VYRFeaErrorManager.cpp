#include "VYRFeaErrorManager.h"

#include "ErrorLog.h"
#include "PrintfText.h"

namespace
{
using VYRStandalone::Report;

std::string TextOf(const char* iText)
{
    return iText != nullptr ? iText : "";
}

/// The place is what every report has alike.
struct Place
{
    const char* file;
    const char* function;
    int line;
};

void Record(Report::Kind iKind, const Place& iPlace, std::string iText, HRESULT iStatus)
{
    ErrorLog::Current().reports.push_back(
        {iKind, std::move(iText), TextOf(iPlace.function), TextOf(iPlace.file), iPlace.line, iStatus});
}
} // namespace

void VYRFeaErrorManager::SetErrorStatus(unsigned char iStatus)
{
    ErrorLog::s_status = iStatus;
}

void VYRFeaErrorManager::CreateAssertionError(const char* iFile, const char* iFunction, int iLine,
                                              const char* iCondition)
{
    Record(Report::Kind::Assertion, {iFile, iFunction, iLine}, TextOf(iCondition), E_FAIL);
}

HRESULT VYRFeaErrorManager::CreateErrorOnCall(const char* iFile, const char* iFunction, int iLine,
                                              const char* iExpression, long iStatus)
{
    const auto status = static_cast<HRESULT>(iStatus);
    Record(Report::Kind::FailedCall, {iFile, iFunction, iLine}, TextOf(iExpression), status);
    return status;
}

void VYRFeaErrorManager::RecordError(const char* iFile, const char* iFunction, int iLine, const char* iMessage)
{
    Record(Report::Kind::Error, {iFile, iFunction, iLine}, TextOf(iMessage), E_FAIL);
}

void VYRFeaErrorManager::RecordFormattedError(const char* iFile, const char* iFunction, int iLine, const char* iFormat,
                                              ...)
{
    std::va_list arguments;
    va_start(arguments, iFormat);
    std::string text = FormatText(iFormat, arguments);
    va_end(arguments);
    Record(Report::Kind::Error, {iFile, iFunction, iLine}, std::move(text), E_FAIL);
}
