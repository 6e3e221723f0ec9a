#ifndef SourceValue_H
#define SourceValue_H

/**
 * @file
 * JSON values that know where they stand.
 */

#include <string>
#include <string_view>
#include <vector>

namespace Tool
{
/// Line and column count from 1, columns in characters.
struct SourcePosition
{
    int line = 1;
    int column = 1;
};

class SourceValue;

struct SourceMember
{
    std::string key;
    SourcePosition keyPosition;
    /// Lives as long as the file.
    const SourceValue* value = nullptr;
};

/**
 * A value of a file, which owns it. The questions by key answer as `JSON::JIStream` does: of a key that stands twice
 * the first counts, and what is missing or of another kind, or has no keys at all, reads as nothing.
 */
class SourceValue
{
public:
    enum class Kind
    {
        Null,
        Boolean,
        Number,
        Text,
        Array,
        Object
    };

    Kind kind = Kind::Null;
    SourcePosition position;
    /// Of a text, without quotation marks and escapes; of a number, as it is written.
    std::string text;
    bool isTrue = false;
    /// Of an array; they live as long as the file.
    std::vector<const SourceValue*> elements;
    /// Of an object, in their order, also those whose key has stood before.
    std::vector<SourceMember> members;

    bool Is(Kind iKind) const noexcept { return kind == iKind; }
    /// "a text", "an object", "null".
    const char* KindText() const noexcept;

    /// Borrowed; null where there is none.
    const SourceMember* Find(std::string_view iKey) const noexcept;
    bool Has(std::string_view iKey) const noexcept { return Find(iKey) != nullptr; }
    /// Valid as long as the file.
    std::string_view TextOf(std::string_view iKey) const noexcept;
    bool IsTrueAt(std::string_view iKey) const noexcept;
    const std::vector<const SourceValue*>& ElementsOf(std::string_view iKey) const noexcept;
};
} // namespace Tool

#endif
