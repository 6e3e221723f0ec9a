#ifndef VYRFeaErrorManager_H
#define VYRFeaErrorManager_H

/**
 * @file
 * The application's error service. Link-time seam.
 */

#include "ORXFormat.h"
#include "ORXStatus.h"

/// Keeps what is reported, in order, and a status byte, both per thread.
class ORXHostExport VYRFeaErrorManager
{
public:
    /// Writes the status byte of this thread.
    static void SetErrorStatus(unsigned char iStatus);

    /// Records that a condition, given as its source text, did not hold.
    static void CreateAssertionError(const char* iFile, const char* iFunction, int iLine, const char* iCondition);

    /**
     * Records an error. @param iMessage a printf-style message with arguments behind it; without arguments it is kept
     * word for word, so that a "%" in it is text
     */
    template <class... Arguments>
    static void CreateError(const char* iFile, const char* iFunction, int iLine, const char* iMessage,
                            const Arguments&... iArguments)
    {
        if constexpr (sizeof...(Arguments) == 0)
            RecordError(iFile, iFunction, iLine, iMessage);
        else
            RecordFormattedError(iFile, iFunction, iLine, iMessage, ORXFormat::Argument(iArguments)...);
    }

    /// Records that a call, given as its source text, answered a negative status. @return the status that the caller
    /// is to return: `iStatus`
    static HRESULT CreateErrorOnCall(const char* iFile, const char* iFunction, int iLine, const char* iExpression,
                                     long iStatus);

private:
    static void RecordError(const char* iFile, const char* iFunction, int iLine, const char* iMessage);
    static void RecordFormattedError(const char* iFile, const char* iFunction, int iLine, const char* iFormat, ...);
};

#endif
