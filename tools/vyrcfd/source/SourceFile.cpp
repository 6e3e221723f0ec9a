#include "SourceFile.h"

#include <fstream>
#include <iterator>

#include "SourceBuilder.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"

namespace Tool
{
SourceFile::SourceFile(const std::string& iPath) : m_path(iPath)
{
    // What is JSON and what is not is the host's to say, since the module reads by it.
    VYRStandalone::CheckJson(iPath);

    std::ifstream stream(iPath, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!BuildSource(text, m_values))
        throw VYRStandalone::DocumentError(iPath, "", "has changed while it was read");
}
} // namespace Tool
