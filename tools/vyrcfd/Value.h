#ifndef Value_H
#define Value_H

/**
 * @file
 * A value of an attribute, taken out of the model.
 */

#include <string>
#include <utility>
#include <vector>

#include "JsonWriter.h"

namespace Tool
{
/// Equal when kind and content are.
class Value
{
public:
    enum class Kind
    {
        /// No value; something else than an empty text.
        Unset,
        /// An object attribute, or an entry of a list of objects, that holds none.
        Empty,
        Boolean,
        Integer,
        Real,
        String,
        /// Stands without quotation marks: the text of an enumeration, the path of an object.
        Word,
        List,
        /// A column of a table.
        Column
    };

    Value() = default;
    static Value Nothing() { return Value(Kind::Empty); }
    static Value Of(bool iValue);
    static Value Of(int iValue);
    static Value Of(double iValue);
    static Value String(std::string iText);
    static Value Word(std::string iText);
    static Value List(std::vector<Value> iEntries);
    static Value Column(const std::vector<double>& iRows);

    Kind GetKind() const noexcept { return m_kind; }
    bool IsUnset() const noexcept { return m_kind == Kind::Unset; }
    const std::string& Text() const noexcept { return m_text; }
    /// Of a list or a column.
    const std::vector<Value>& Entries() const noexcept { return m_entries; }

    /// For a reader: `0.7`, `"a text"`, `[a, b]`, `(unset)`, `(empty)`.
    std::string Shown() const;
    /// For a machine: a value of the same kind, null for none.
    void Write(JsonWriter& oWriter) const;

    friend bool operator==(const Value& iLeft, const Value& iRight);

private:
    explicit Value(Kind iKind) : m_kind(iKind) {}
    std::string ShownEntries() const;

    Kind m_kind = Kind::Unset;
    bool m_boolean = false;
    int m_integer = 0;
    double m_real = 0.0;
    std::string m_text;
    std::vector<Value> m_entries;
};
} // namespace Tool

#endif
