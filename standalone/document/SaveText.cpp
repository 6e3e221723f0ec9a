#include "FileReplacement.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"

namespace VYRStandalone
{
void SaveText(const std::string& iFile, const std::string& iText)
{
    if (const std::string error = ReplaceFile(iFile, iText); !error.empty())
        throw DocumentError(iFile, "", error);
}
} // namespace VYRStandalone
