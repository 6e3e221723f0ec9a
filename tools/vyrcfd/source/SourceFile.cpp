#include "SourceFile.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>

#include "SourceBuilder.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"

namespace Tool
{
namespace
{
/// A member by its key or an element by its number from 0; null for none.
const SourceValue* StepTo(const SourceValue& iFrom, const std::string& iStep)
{
    if (const SourceMember* member = iFrom.Find(iStep))
        return member->value;
    std::size_t number = 0;
    const char* const end = iStep.data() + iStep.size();
    const std::from_chars_result read = std::from_chars(iStep.data(), end, number);
    const bool isNumber = read.ec == std::errc() && read.ptr == end;
    return isNumber && number < iFrom.elements.size() ? iFrom.elements[number] : nullptr;
}
} // namespace

SourceFile::SourceFile(const std::string& iPath) : m_path(iPath)
{
    // What is JSON and what is not is the host's to say, since the module reads by it.
    VYRStandalone::CheckJson(iPath);

    std::ifstream stream(iPath, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!BuildSource(text, m_values))
        throw VYRStandalone::DocumentError(iPath, "", "has changed while it was read");
}

SourcePosition SourceFile::PositionAt(const std::string& iPath) const
{
    const SourceValue* value = &Root();
    const SourceValue* next = value;
    for (std::size_t at = 1; next != nullptr && at < iPath.size();)
    {
        const std::size_t end = std::min(iPath.find('/', at), iPath.size());
        next = StepTo(*value, iPath.substr(at, end - at));
        value = next != nullptr ? next : value;
        at = end + 1;
    }
    return value->position;
}
} // namespace Tool
