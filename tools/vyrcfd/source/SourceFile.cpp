#include "SourceFile.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <utility>

#include "SourceBuilder.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"

namespace Tool
{
std::string KeyOfStep(std::string iStep)
{
    for (const auto& [escape, sign] : {std::pair("~1", "/"), std::pair("~0", "~")})
        for (std::size_t at = iStep.find(escape); at != std::string::npos; at = iStep.find(escape, at + 1))
            iStep.replace(at, 2, sign);
    return iStep;
}

namespace
{
/// A member by its key or an element by its number from 0; without value for none.
SourceMember StepTo(const SourceValue& iFrom, const std::string& iStep)
{
    if (const SourceMember* member = iFrom.Find(KeyOfStep(iStep)))
        return *member;
    std::size_t number = 0;
    const char* const end = iStep.data() + iStep.size();
    const std::from_chars_result read = std::from_chars(iStep.data(), end, number);
    const bool isNumber = read.ec == std::errc() && read.ptr == end;
    return {{}, {}, isNumber && number < iFrom.elements.size() ? iFrom.elements[number] : nullptr};
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

SourceMember SourceFile::MemberAt(const std::string& iPath) const
{
    SourceMember member{{}, {}, &Root()};
    for (std::size_t at = 1; at < iPath.size();)
    {
        const std::size_t end = std::min(iPath.find('/', at), iPath.size());
        SourceMember next = StepTo(*member.value, iPath.substr(at, end - at));
        if (next.value == nullptr)
            break;
        member = std::move(next);
        at = end + 1;
    }
    return member;
}
} // namespace Tool
