#include "PrintfText.h"

#include <cstdio>

std::string FormatText(const char* iFormat, std::va_list iArguments)
{
    std::va_list again;
    va_copy(again, iArguments);
    const int length = std::vsnprintf(nullptr, 0, iFormat, iArguments);
    std::string text;
    if (length >= 0)
    {
        // The terminating zero that is written goes where the string keeps its own.
        text.resize(static_cast<std::size_t>(length));
        std::vsnprintf(text.data(), text.size() + 1, iFormat, again);
    }
    else
        text = iFormat;
    va_end(again);
    return text;
}
