#include "JsonDraft.h"

#include <algorithm>
#include <stdexcept>

using JSON::Document;

void JsonDraft::Clear()
{
    m_size = 0;
    m_open.clear();
    const Word none = Take(Document::ShapeWords);
    std::fill_n(&m_words[none], Document::ShapeWords, Word{0});
    std::fill(m_texts.begin(), m_texts.end(), MetText());
    std::fill(m_shapes.begin(), m_shapes.end(), MetKey());
}

JsonDraft::Word JsonDraft::Take(std::size_t iWords)
{
    const std::size_t place = m_size;
    if (iWords > Document::MostWords - place)
        throw std::length_error("JsonDraft");
    m_size += iWords;
    // And a word behind it, at which an empty text may end.
    if (m_size >= m_words.size())
        m_words.resize(2 * m_size);
    return static_cast<Word>(place);
}

bool JsonDraft::HasSameEnd(Word iText, const char* iOther, std::size_t iBytes) const noexcept
{
    return std::memcmp(&m_words[iText + 1], iOther, iBytes) == 0;
}

JsonDraft::Word JsonDraft::NewText(const char* iText, std::size_t iBytes)
{
    const Word place = Take(1 + (iBytes + sizeof(Word) - 1) / sizeof(Word));
    m_words[place] = static_cast<Word>(iBytes);
    std::memcpy(&m_words[place + 1], iText, iBytes);
    return place;
}

JsonDraft::Word JsonDraft::NewShape(Word iShape, Word iKey)
{
    const Word place = Take(Document::ShapeWords);
    m_words[place] = iKey;
    m_words[place + 1] = iShape;
    m_words[place + 2] = m_words[iShape + 2] + 1;
    return place;
}

JsonDraft::Word JsonDraft::WriteObjects(std::size_t iPlace)
{
    const std::size_t words = m_open.size() - iPlace;
    const Word place = Take(words);
    std::copy_n(m_open.data() + iPlace, words, m_words.data() + place);
    for (std::size_t at = place; at < m_size; at += Document::HeadWords + m_words[m_words[at + 1] + 2])
        m_words[at] = static_cast<Word>(at);
    m_open.resize(iPlace);
    return place;
}

JsonDraft::Word JsonDraft::CloseArray(std::size_t iPlace, std::size_t iElements)
{
    const Word place = Take(1);
    m_words[place] = static_cast<Word>(iElements);
    WriteObjects(iPlace);
    return (place << Document::TagBits) | Document::Array;
}

JSON::JIStream JsonDraft::Finish()
{
    const Word root = WriteObjects(0);
    return Document::Make(m_words.data(), m_size, root);
}

void JsonDraft::Trim(std::size_t iBytes)
{
    for (std::vector<Word>* const words : {&m_words, &m_open})
        if (words->capacity() * sizeof(Word) > iBytes)
            *words = std::vector<Word>();
}
