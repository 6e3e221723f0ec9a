#ifndef FastJson_H
#define FastJson_H

#include <simdjson.h>

#include "JsonDraft.h"

/**
 * Reads JSON by simdjson, in one pass over the file and without an allocation for each value. Made once for the files
 * that are read one after another.
 *
 * It has no say in what is refused: what simdjson refuses goes to StrictJson, which takes some of it - integers that 64
 * bits do not hold, the last step of the allowed nesting - and otherwise knows the error. What simdjson takes must
 * therefore be what StrictJson takes too, and relied on for that is that it
 * - takes the grammar of the standard and nothing beyond: no comments, no byte order mark (looked at here as well,
 *   since later versions skip it), no zero byte, nothing behind the value,
 * - refuses what is no UTF-8, wherever it stands, halves of surrogate pairs, written as escapes, included,
 * - refuses a number that a double cannot hold for its size; of one that is too small for a double it makes 0, as
 *   StrictJson does. It takes 0e400, and 310 digits with e-100 behind them, which StrictJson does not, so that files
 *   with such a zero, or with so many digits, are left to that,
 * - counts arrays and objects inside each other no less deep than StrictJson does.
 */
class FastJson
{
public:
    /// How many bytes behind a text simdjson may read.
    static constexpr std::size_t Padding = simdjson::SIMDJSON_PADDING;

    enum class Verdict
    {
        Object,
        /// Valid, and therefore refused as no configuration can be a text or an array.
        NoObject,
        /// Not for this reader.
        Undecided
    };

    /// @param iText Padding more bytes behind it can be read
    /// @throws std::bad_alloc
    Verdict Read(std::string_view iText, JsonDraft& oDraft);

    /// The length of the texts for which there is room.
    std::size_t Capacity() const noexcept { return m_parser.capacity(); }

private:
    /// @throws std::bad_alloc
    void MakeRoom(std::size_t iBytes);

    simdjson::dom::parser m_parser;
    simdjson::dom::document m_json;
};

#endif
