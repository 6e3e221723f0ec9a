#include "StrictJson.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"
#include "WholeFile.h"

namespace VYRStandalone
{
void CheckJson(const std::string& iFile)
{
    std::string text;
    if (const std::string wrong = ReadWholeFile(iFile, text); !wrong.empty())
        throw DocumentError(iFile, "", wrong);
    rapidjson::Document document;
    if (const auto error = StrictJson::Parse(text, document))
        throw DocumentError(iFile, error->line, error->column, error->message);
}
} // namespace VYRStandalone
