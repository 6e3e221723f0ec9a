#include "KnowledgeType.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <memory>
#include <mutex>
#include <typeinfo>

#include "Instruments.h"
#include "ORXComponentLink.h"
#include "ORXTypeCode.h"
#include "Quantity.h"

namespace VYRStandalone
{
namespace
{
constexpr std::string_view blanks = " \t\n\v\f\r";

std::string_view WithoutBlanks(std::string_view iText)
{
    const std::size_t first = iText.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return iText.substr(first, iText.find_last_not_of(blanks) - first + 1);
}

bool EqualsInAnyCase(std::string_view iText, std::string_view iLowerCase)
{
    return std::equal(iText.begin(), iText.end(), iLowerCase.begin(), iLowerCase.end(), [](char iLeft, char iRight) {
        return (iLeft >= 'A' && iLeft <= 'Z' ? static_cast<char>(iLeft - 'A' + 'a') : iLeft) == iRight;
    });
}

std::string Quoted(std::string_view iText)
{
    return '"' + std::string(iText) + '"';
}
} // namespace

KnowledgeType::KnowledgeType(ValueKind iKind, const std::string& iName, KnowledgeType* iBase)
    : m_kind(iKind), m_name(iName.c_str(), iName.size()), m_base(iBase)
{
    ORXComponentLink::CountAt(*this, nullptr);
}

// The types are immortal, and so made past the allocation that the census counts.

KnowledgeType* KnowledgeType::Real()
{
    static KnowledgeType* const type = ::new KnowledgeType(ValueKind::Real, "Real", nullptr);
    return type;
}

KnowledgeType* KnowledgeType::Integer()
{
    static KnowledgeType* const type = ::new KnowledgeType(ValueKind::Integer, "Integer", nullptr);
    return type;
}

KnowledgeType* KnowledgeType::Boolean()
{
    static KnowledgeType* const type = ::new KnowledgeType(ValueKind::Boolean, "Boolean", nullptr);
    return type;
}

KnowledgeType* KnowledgeType::Enum()
{
    static KnowledgeType* const type = ::new KnowledgeType(ValueKind::Enumeration, "Enum", nullptr);
    return type;
}

KnowledgeType* KnowledgeType::String()
{
    static KnowledgeType* const type = ::new KnowledgeType(ValueKind::String, "String", nullptr);
    return type;
}

KnowledgeType* KnowledgeType::MakeEnumeration(const std::string& iName, const std::vector<std::string>& iTexts)
{
    // Kept, so that it stays reachable when the object that an enumeration was added to has gone.
    static std::mutex* const mutex = new std::mutex;
    static std::vector<KnowledgeType*>* const kept = new std::vector<KnowledgeType*>;
    const auto drop = [](KnowledgeType* iType) { ::delete iType; };
    std::unique_ptr<KnowledgeType, decltype(drop)> type(::new KnowledgeType(ValueKind::Enumeration, iName, Enum()),
                                                        drop);
    for (const std::string& text : iTexts)
        type->m_texts.emplace_back(text.c_str(), text.size());
    const std::lock_guard<std::mutex> lock(*mutex);
    kept->push_back(type.get());
    return type.release();
}

KnowledgeType* KnowledgeType::RealOfUnit(const std::string& iUnit, std::string& oWhy)
{
    const Quantity* const quantity = Quantity::OfUnit(iUnit, oWhy);
    if (quantity == nullptr)
        return nullptr;
    static std::mutex* const mutex = new std::mutex;
    static std::map<const Quantity*, KnowledgeType*>* const types = new std::map<const Quantity*, KnowledgeType*>;
    const std::lock_guard<std::mutex> lock(*mutex);
    KnowledgeType*& type = (*types)[quantity];
    if (type == nullptr)
    {
        type = ::new KnowledgeType(ValueKind::Real, "Real [" + quantity->SiUnit() + ']', Real());
        type->m_quantity = quantity;
    }
    return type;
}

KnowledgeType* KnowledgeType::OfTypeCode(int iTypeCode)
{
    switch (iTypeCode)
    {
    case tk_double:
        return Real();
    case tk_integer:
        return Integer();
    case tk_boolean:
        return Boolean();
    case tk_enum:
        return Enum();
    case tk_string:
        return String();
    default:
        return nullptr;
    }
}

const KnowledgeType* KnowledgeType::Of(const ORXICkeType* iType)
{
    if (iType == nullptr || typeid(*iType) != typeid(KnowledgeType))
        return nullptr;
    return static_cast<const KnowledgeType*>(iType);
}

int KnowledgeType::NumberOf(std::string_view iText) const noexcept
{
    for (std::size_t index = 0; index < m_texts.size(); ++index)
        if (m_texts[index].View() == iText)
            return static_cast<int>(index) + 1;
    return 0;
}

bool KnowledgeType::FromBoolean(bool iValue, Scalar& oValue) const
{
    if (m_kind != ValueKind::Boolean)
        return false;
    oValue = iValue;
    return true;
}

bool KnowledgeType::FromReal(double iValue, Scalar& oValue) const
{
    if (m_kind != ValueKind::Real)
        return false;
    oValue = iValue;
    return true;
}

bool KnowledgeType::FromInteger(int iValue, Scalar& oValue) const
{
    switch (m_kind)
    {
    case ValueKind::Real:
        oValue = static_cast<double>(iValue);
        return true;
    case ValueKind::Enumeration:
        if (iValue < 1 || static_cast<std::size_t>(iValue) > m_texts.size())
            return false;
        [[fallthrough]];
    case ValueKind::Integer:
        oValue = iValue;
        return true;
    default:
        return false;
    }
}

bool KnowledgeType::FromText(const ORXUnicodeString& iText, Scalar& oValue) const
{
    switch (m_kind)
    {
    case ValueKind::String:
        oValue = iText;
        return true;
    case ValueKind::Real:
    {
        double real = 0.0;
        if (m_quantity != nullptr ? !m_quantity->Read(iText.View(), real) : !ReadReal(iText.View(), real))
            return false;
        oValue = real;
        return true;
    }
    case ValueKind::Integer:
    {
        int integer = 0;
        if (iText.ConvertToNum(&integer, "%d") == 0)
            return false;
        oValue = integer;
        return true;
    }
    case ValueKind::Boolean:
    {
        const bool isTrue = EqualsInAnyCase(iText.View(), "true") || iText == "1";
        if (!isTrue && !EqualsInAnyCase(iText.View(), "false") && !(iText == "0"))
            return false;
        oValue = isTrue;
        return true;
    }
    case ValueKind::Enumeration:
        return FromInteger(NumberOf(iText.View()), oValue);
    }
    return false;
}

bool KnowledgeType::FromScalar(const KnowledgeType& iType, const Scalar& iValue, Scalar& oValue) const
{
    // The number of one enumeration's text means nothing in another. Those that were added to two objects are one when
    // their names and texts agree.
    if (iType.m_kind == ValueKind::Enumeration)
    {
        if (m_kind != ValueKind::Enumeration ||
            (&iType != this && !(iType.m_name == m_name && iType.m_texts == m_texts)))
            return false;
        oValue = iValue;
        return true;
    }
    if (const int* const integer = std::get_if<int>(&iValue))
        return FromInteger(*integer, oValue);
    if (iType.m_kind != m_kind)
        return false;
    if (m_quantity != nullptr && iType.m_quantity != nullptr && !m_quantity->IsSame(*iType.m_quantity))
        return false;
    oValue = iValue;
    return true;
}

bool KnowledgeType::FromDocument(const DeclaredScalar& iValue, Scalar& oValue, std::string& oWhy) const
{
    if (std::holds_alternative<std::monostate>(iValue))
    {
        oValue = std::monostate();
        return true;
    }
    const double* const real = std::get_if<double>(&iValue);
    const int* const integer = std::get_if<int>(&iValue);
    const bool* const boolean = std::get_if<bool>(&iValue);
    const std::string* const text = std::get_if<std::string>(&iValue);
    switch (m_kind)
    {
    case ValueKind::Real:
        if (real != nullptr && FromReal(*real, oValue))
            return true;
        if (integer != nullptr && FromInteger(*integer, oValue))
            return true;
        if (text != nullptr && FromText(ORXUnicodeString(text->c_str(), text->size()), oValue))
            return true;
        oWhy = "a number is wanted";
        if (text != nullptr)
            oWhy = m_quantity == nullptr || m_quantity->SiUnit().empty()
                       ? "no number: " + Quoted(*text)
                       : "no number, or no unit like " + Quoted(m_quantity->SiUnit()) + ": " + Quoted(*text);
        return false;
    case ValueKind::Integer:
        if (integer != nullptr && FromInteger(*integer, oValue))
            return true;
        oWhy = "an integer is wanted";
        return false;
    case ValueKind::Boolean:
        if (boolean != nullptr && FromBoolean(*boolean, oValue))
            return true;
        oWhy = "true or false is wanted";
        return false;
    case ValueKind::Enumeration:
        if (text != nullptr && FromInteger(NumberOf(*text), oValue))
            return true;
        oWhy = text != nullptr ? "no text of the enumeration: " + Quoted(*text) : "a text of the enumeration is wanted";
        return false;
    case ValueKind::String:
        if (text == nullptr)
        {
            oWhy = "a text is wanted";
            return false;
        }
        oValue = ORXUnicodeString(text->c_str(), text->size());
        return true;
    }
    return false;
}

ORXUnicodeString KnowledgeType::ToText(const Scalar& iValue) const
{
    if (const ORXUnicodeString* const text = std::get_if<ORXUnicodeString>(&iValue))
        return *text;
    if (const double* const real = std::get_if<double>(&iValue))
    {
        if (m_quantity == nullptr || m_quantity->SiUnit().empty())
            return RealText(*real);
        return RealText(*real) + (' ' + m_quantity->SiUnit()).c_str();
    }
    if (const bool* const boolean = std::get_if<bool>(&iValue))
        return *boolean ? "true" : "false";
    const int* const integer = std::get_if<int>(&iValue);
    if (integer == nullptr)
        return {};
    if (m_kind == ValueKind::Enumeration && *integer >= 1 && static_cast<std::size_t>(*integer) <= m_texts.size())
        return m_texts[static_cast<std::size_t>(*integer) - 1];
    return std::to_string(*integer).c_str();
}

HRESULT KnowledgeType::QueryInterface(const IID& iInterface, void** oInterface)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::FailsCast(iInterface, oInterface, planted))
        return planted;
    const bool isOffered = iInterface == IID_ORXICkeType || iInterface == IID_ORXBaseUnknown;
    *oInterface = isOffered ? this : nullptr;
    return isOffered ? S_OK : E_NOINTERFACE;
}

unsigned int KnowledgeType::AddRef()
{
    return 1;
}

unsigned int KnowledgeType::Release()
{
    return 1;
}

ORXCke::Boolean KnowledgeType::IsaKindOf(const ORXUnicodeString& iTypeName)
{
    for (const KnowledgeType* type = this; type != nullptr; type = type->m_base)
        if (type->m_name == iTypeName)
            return ORXCke::True;
    return ORXCke::False;
}

ORXCke::Boolean KnowledgeType::IsaKindOf(const ORXICkeType_var& iType)
{
    for (const KnowledgeType* type = this; type != nullptr; type = type->m_base)
        if (static_cast<const ORXICkeType*>(type) == iType.Pointer())
            return ORXCke::True;
    return ORXCke::False;
}

ORXCke::Boolean KnowledgeType::IsaReal()
{
    return ORXCke::Boolean::Of(m_kind == ValueKind::Real);
}

ORXCke::Boolean KnowledgeType::IsaBoolean()
{
    return ORXCke::Boolean::Of(m_kind == ValueKind::Boolean);
}

ORXCke::Boolean KnowledgeType::IsaInteger()
{
    return ORXCke::Boolean::Of(m_kind == ValueKind::Integer);
}

ORXCke::Boolean KnowledgeType::IsaString()
{
    return ORXCke::Boolean::Of(m_kind == ValueKind::String);
}

ORXUnicodeString RealText(double iValue)
{
    char text[64];
    const std::to_chars_result end = std::to_chars(std::begin(text), std::end(text), iValue);
    return ORXUnicodeString(text, static_cast<std::size_t>(end.ptr - text));
}

bool ReadLeadingReal(std::string_view iText, double& oValue, std::string_view& oRest)
{
    std::string_view number = WithoutBlanks(iText);
    const bool isNegative = !number.empty() && number.front() == '-';
    if (isNegative || (!number.empty() && number.front() == '+'))
        number.remove_prefix(1);
    std::chars_format format = std::chars_format::general;
    if (number.size() > 2 && number[0] == '0' && (number[1] == 'x' || number[1] == 'X'))
    {
        number.remove_prefix(2);
        format = std::chars_format::hex;
    }
    // A second sign would be read by from_chars, but is no number.
    if (number.empty() || number.front() == '-')
        return false;
    double value = 0.0;
    const std::from_chars_result end = std::from_chars(number.data(), number.data() + number.size(), value, format);
    if (end.ec != std::errc() || !std::isfinite(value))
        return false;
    oValue = isNegative ? -value : value;
    oRest = WithoutBlanks(number.substr(static_cast<std::size_t>(end.ptr - number.data())));
    return true;
}

bool ReadReal(std::string_view iText, double& oValue)
{
    std::string_view rest;
    double value = 0.0;
    if (!ReadLeadingReal(iText, value, rest) || !rest.empty())
        return false;
    oValue = value;
    return true;
}
} // namespace VYRStandalone
