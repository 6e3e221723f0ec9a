#ifndef VYRFeaIndentedTraceManager_H
#define VYRFeaIndentedTraceManager_H

/**
 * @file
 * Trace scopes of functions. A value class: a scope that is off costs two tests; printing is a link-time seam.
 */

#include "ORXTrace.h"

/**
 * Prints a line when a function is entered and one when it is left, indented by the depth of open scopes:
 *
 *     > VYRCfdConfigurator::LoadConfigs [10]
 *     < VYRCfdConfigurator::LoadConfigs
 *
 * @code
 *     VYRFeaIndentedTraceManager scope("F::G", __FILE__, __LINE__, VYRCfdTraceManager::_Features, 10);
 * @endcode
 */
class ORXHostExport VYRFeaIndentedTraceManager
{
public:
    /// The texts are borrowed until the scope ends. A reference to a null channel prints nothing.
    VYRFeaIndentedTraceManager(const char* iFunction, const char* iFile, int iLine, ORXTrace*& iChannel, int iLevel)
        : m_channel(iChannel != nullptr && iChannel->IsActive() ? iChannel : nullptr), m_function(iFunction)
    {
        if (m_channel != nullptr)
            Open(iFile, iLine, iLevel);
    }

    ~VYRFeaIndentedTraceManager()
    {
        if (m_channel != nullptr)
            Close();
    }

    /// Prints the current indentation, and `iExtra` steps more, on the sibling's debug channel.
    static void PrintDebugIndent(int iExtra);

    VYRFeaIndentedTraceManager(const VYRFeaIndentedTraceManager&) = delete;
    VYRFeaIndentedTraceManager& operator=(const VYRFeaIndentedTraceManager&) = delete;

private:
    void Open(const char* iFile, int iLine, int iLevel);
    void Close();

    ORXTrace* m_channel;
    const char* m_function;
};

#endif
