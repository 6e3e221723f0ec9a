#ifndef ORXTrace_H
#define ORXTrace_H

/**
 * @file
 * Trace channels. Value classes as far as the level and activity queries go, since every function scope makes them;
 * the rest is a link-time seam.
 */

#include "ORXExport.h"
#include "ORXFormat.h"

/// Whether a channel prints.
enum ORXTraMode
{
    ORXTraSilent = 0,
    ORXTraActive = 1
};

/// A named channel of trace lines. It is never destroyed.
class ORXHostExport ORXTrace
{
public:
    /**
     * Name, description and file are borrowed for the constructor call only.
     * @param iFile name of the output; "STDOUT" is the standard output
     * @param iLevel maximum level of the channel, which `ORXTraControle` answers; it does not filter prints
     */
    ORXTrace(const char* iName, const char* iDescription, ORXTraMode iMode, const char* iFile, int iLevel);

    /// A channel without a flag is silent.
    bool IsActive() const noexcept { return m_active != nullptr && *m_active != 0; }

    /**
     * Prints a line in printf style, if the channel is active. A format without arguments is printed word for word.
     * The level is part of the line's meaning only.
     */
    template <class... Arguments> void TraPrint(int iLevel, const char* iFormat, const Arguments&... iArguments)
    {
        static_cast<void>(iLevel);
        TraPrint(iFormat, iArguments...);
    }

    /// The same without a level.
    template <class... Arguments> void TraPrint(const char* iFormat, const Arguments&... iArguments)
    {
        if (!IsActive())
            return;
        if constexpr (sizeof...(Arguments) == 0)
            PrintText(iFormat);
        else
            PrintFormatted(iFormat, ORXFormat::Argument(iArguments)...);
    }

    /// Borrowed, valid as long as the channel; as are the other two.
    const char* Name() const noexcept { return m_name; }
    /// What the channel is for.
    const char* Description() const noexcept { return m_description; }
    /// Name of the output.
    const char* File() const noexcept { return m_file; }

    ORXTrace(const ORXTrace&) = delete;
    ORXTrace& operator=(const ORXTrace&) = delete;

private:
    friend class ORXTraControle;

    void PrintText(const char* iText);
    void PrintFormatted(const char* iFormat, ...);

    const char* m_name;
    const char* m_description;
    const char* m_file;
    const int* m_active;
    int m_level;
};

/// The control of the channel of a name.
class ORXHostExport ORXTraControle
{
public:
    /// Looks the channel up once.
    explicit ORXTraControle(const char* iName);

    /// The channel's maximum level; 0 when there is no channel of that name.
    int TraGetLevelMax() const noexcept { return m_channel != nullptr ? m_channel->m_level : 0; }

private:
    const ORXTrace* m_channel;
};

#endif
