#include "ModelText.h"

#include <string_view>
#include <vector>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include "Failure.h"

namespace Tool
{
namespace
{
struct Span
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Finds the objects of the array under "objects", and that array. The parser tells of a bracket before it takes it.
class ObjectFinder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, ObjectFinder>
{
public:
    explicit ObjectFinder(const rapidjson::MemoryStream& iStream) : m_stream(iStream) {}

    bool Key(const char* iText, rapidjson::SizeType iLength, bool /*iCopy*/)
    {
        if (m_depth == 1)
            m_isInObjects = std::string_view(iText, iLength) == "objects";
        return true;
    }
    bool StartObject()
    {
        if (IsAtElement())
            objects.push_back({m_stream.Tell(), 0});
        ++m_depth;
        return true;
    }
    bool EndObject(rapidjson::SizeType /*iMembers*/)
    {
        --m_depth;
        if (IsAtElement())
            objects.back().end = m_stream.Tell() + 1;
        return true;
    }
    bool StartArray()
    {
        if (m_isInObjects && m_depth == 1)
            array.begin = m_stream.Tell() + 1;
        ++m_depth;
        return true;
    }
    bool EndArray(rapidjson::SizeType /*iElements*/)
    {
        --m_depth;
        if (m_isInObjects && m_depth == 1)
            array.end = m_stream.Tell();
        return true;
    }
    bool Default() { return true; }

    std::vector<Span> objects;
    /// Between the brackets.
    Span array;

private:
    bool IsAtElement() const { return m_isInObjects && m_depth == 2; }

    const rapidjson::MemoryStream& m_stream;
    int m_depth = 0;
    bool m_isInObjects = false;
};
} // namespace

std::string WithoutObjects(const std::string& iText, const std::set<std::size_t>& iPositions)
{
    rapidjson::MemoryStream stream(iText.data(), iText.size());
    ObjectFinder finder(stream);
    // Numbers may be larger than the parser would take.
    constexpr unsigned Flags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag;
    const bool isRead = !rapidjson::Reader().Parse<Flags>(stream, finder).IsError();
    const std::vector<Span>& objects = finder.objects;
    if (!isRead || (!iPositions.empty() && *iPositions.rbegin() > objects.size()))
        throw Failure("vyrcfd: internal error: the text is not that of the model");

    std::string kept;
    for (std::size_t i = 0; i < objects.size(); ++i)
    {
        if (iPositions.count(i + 1) != 0)
            continue;
        // An object comes with what parts it from the one before, the first that is kept as the first of all.
        const Span before = kept.empty() ? Span{0, objects.front().begin} : Span{objects[i - 1].end, objects[i].begin};
        kept += iText.substr(before.begin, before.end - before.begin);
        kept += iText.substr(objects[i].begin, objects[i].end - objects[i].begin);
    }
    // Of an array that becomes empty nothing stays between the brackets.
    return kept.empty() ? iText.substr(0, finder.array.begin) + iText.substr(finder.array.end)
                        : kept + iText.substr(objects.back().end);
}
} // namespace Tool
