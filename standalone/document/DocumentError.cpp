#include "VYRStandaloneErrors.h"

namespace
{
/// Names and values in a message come from documents; the message stays one line whatever they hold.
std::string OneLine(const std::string& iText)
{
    std::string line;
    for (const char character : iText)
    {
        const bool isControl = static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
        line += isControl ? ' ' : character;
    }
    return line;
}

std::string InFile(const std::string& iFile, const std::string& iRest)
{
    return OneLine(iFile + ": " + iRest);
}
} // namespace

namespace VYRStandalone
{
DocumentError::DocumentError(const std::string& iFile, int iLine, int iColumn, const std::string& iMessage)
    : std::runtime_error(
          OneLine(iFile + ":" + std::to_string(iLine) + ":" + std::to_string(iColumn) + ": " + iMessage)),
      m_file(iFile), m_line(iLine), m_column(iColumn)
{
}

DocumentError::DocumentError(const std::string& iFile, const std::string& iPath, const std::string& iMessage)
    : std::runtime_error(InFile(iFile, iPath.empty() ? iMessage : iPath + ": " + iMessage)), m_file(iFile),
      m_path(iPath)
{
}
} // namespace VYRStandalone
