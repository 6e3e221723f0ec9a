#include "JsonDocument.h"

#include <cstring>
#include <new>

namespace JSON
{
namespace
{
std::string_view TextAt(const Document::Word* iText) noexcept
{
    return {reinterpret_cast<const char*>(iText + 1), *iText};
}
} // namespace

JIStream Document::Make(const Word* iWords, std::size_t iCount, Word iObject)
{
    static_assert(sizeof(Document) % alignof(Word) == 0 && alignof(Document) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    void* const memory = ::operator new(sizeof(Document) + iCount * sizeof(Word));
    Document* const document = new (memory) Document;
    std::memcpy(static_cast<void*>(document + 1), iWords, iCount * sizeof(Word));
    JIStream stream;
    stream.m_object = reinterpret_cast<const Word*>(document + 1) + iObject;
    return stream;
}

Document& Document::Of(const Word* iObject) noexcept
{
    return *(reinterpret_cast<Document*>(const_cast<Word*>(WordsOf(iObject))) - 1);
}

void Document::CountIn(const Word* iObject, std::size_t iStreams) noexcept
{
    Of(iObject).m_streams.fetch_add(iStreams, std::memory_order_relaxed);
}

void Document::CountOut(const Word* iObject) noexcept
{
    Document& document = Of(iObject);
    if (document.m_streams.fetch_sub(1, std::memory_order_acq_rel) > 1)
        return;
    document.~Document();
    ::operator delete(static_cast<void*>(&document));
}

const Document::Word* Document::Find(const Word* iObject, std::string_view iKey) noexcept
{
    const Word* const words = WordsOf(iObject);
    const Word* value = nullptr;
    // From the last key to the first one, which counts.
    for (const Word* shape = words + iObject[1]; shape[2] != 0; shape = words + shape[1])
        if (TextAt(words + shape[0]) == iKey)
            value = iObject + HeadWords + shape[2] - 1;
    return value;
}

bool Document::Has(const Word* iObject, std::string_view iKey) noexcept
{
    return Find(iObject, iKey) != nullptr;
}

std::string_view Document::TextOf(const Word* iObject, std::string_view iKey) noexcept
{
    const Word* const value = Find(iObject, iKey);
    if (value == nullptr || (*value & TagMask) != Text)
        return {};
    return TextAt(WordsOf(iObject) + (*value >> TagBits));
}

bool Document::IsTrue(const Word* iObject, std::string_view iKey) noexcept
{
    const Word* const value = Find(iObject, iKey);
    return value != nullptr && (*value & TagMask) == True;
}

std::vector<JIStream> Document::Objects(const Word* iObject, std::string_view iKey)
{
    std::vector<JIStream> objects;
    const Word* const value = Find(iObject, iKey);
    if (value == nullptr || (*value & TagMask) != Array)
        return objects;
    const Word* const words = WordsOf(iObject);
    const Word* element = words + (*value >> TagBits);
    const std::size_t count = *element++;
    objects.resize(count);
    CountIn(iObject, count);
    for (JIStream& stream : objects)
    {
        stream.m_object = element;
        element += HeadWords + words[element[1] + 2];
    }
    return objects;
}
} // namespace JSON
