#ifndef DocumentFault_H
#define DocumentFault_H

/**
 * @file
 * What is wrong with a catalog or a model, with the place in the text, which the host tells by a path inside the
 * document only, and with what was probably meant.
 */

#include <string>
#include <vector>

#include "SourceValue.h"
#include "VYRStandaloneErrors.h"

namespace Tool
{
struct DocumentFault
{
    /// Of the value, or of the key where that is unknown. The beginning of the file where no place in it is wrong.
    SourcePosition position;
    bool hasPlace = false;
    /// In place of what is written there; empty where nothing is like it, and where the error says so itself.
    std::string suggestion{};
    /// The key that is unknown, where the message says that one is, and not which.
    std::string unknownKey{};
    /// What else there is to say, to be put behind the message.
    std::string remark{};
    /// What the message is about, to be put in front of it, where it only says what that is: `"name"` of "is missing".
    std::string subject{};
};

/// Looks the place up in the file. @param iCatalogFolders where catalogs are sought
DocumentFault FaultOf(const VYRStandalone::DocumentError& iError, const std::vector<std::string>& iCatalogFolders);

/// In one line: what the error says, with line and column behind its file, and what was probably meant.
std::string PlacedLineOf(const VYRStandalone::DocumentError& iError, const std::vector<std::string>& iCatalogFolders);
} // namespace Tool

#endif
