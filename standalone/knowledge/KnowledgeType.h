#ifndef KnowledgeType_H
#define KnowledgeType_H

#include <string>
#include <vector>

#include "ORXICkeType.h"
#include "Scalar.h"

namespace VYRStandalone
{
class Quantity;

enum class ValueKind : unsigned char
{
    Real,
    Integer,
    Boolean,
    Enumeration,
    String
};

/**
 * A knowledge type: one of the five base types, an enumeration of its own, which derives from "Enum", or the reals of a
 * quantity, which derive from "Real". Immortal.
 *
 * It knows how values of its kind are read and written, so that attributes, volatile parameters and documents agree.
 */
class KnowledgeType final : public ORXICkeType
{
public:
    /// The base types. Borrowed, valid until the process ends.
    static KnowledgeType* Real();
    static KnowledgeType* Integer();
    static KnowledgeType* Boolean();
    static KnowledgeType* Enum();
    static KnowledgeType* String();

    /// A new enumeration. Borrowed, valid until the process ends.
    static KnowledgeType* MakeEnumeration(const std::string& iName, const std::vector<std::string>& iTexts);

    /// The reals of a quantity, which derive from `Real`; one type for each SI unit. Borrowed, valid until the process
    /// ends; null for a text that is no unit. @param oWhy receives what is wrong then
    static KnowledgeType* RealOfUnit(const std::string& iUnit, std::string& oWhy);

    /// The base type of a scalar type code; null for a code that is no value.
    static KnowledgeType* OfTypeCode(int iTypeCode);

    /// The type behind an interface pointer; null for null and for a type that is not the host's.
    static const KnowledgeType* Of(const ORXICkeType* iType);

    ValueKind Kind() const noexcept { return m_kind; }
    const ORXUnicodeString& Name() const noexcept { return m_name; }
    /// What a real measures; null for a mere number.
    const Quantity* Measured() const noexcept { return m_quantity; }
    /// Texts of an enumeration, the first has the number 1.
    const std::vector<ORXUnicodeString>& Texts() const noexcept { return m_texts; }
    /// Number of a text; 0 when the enumeration has no such text.
    int NumberOf(std::string_view iText) const noexcept;

    /// What a write of this kind stores; false when the argument is of the wrong kind or cannot be read.
    bool FromBoolean(bool iValue, Scalar& oValue) const;
    bool FromReal(double iValue, Scalar& oValue) const;
    bool FromInteger(int iValue, Scalar& oValue) const;
    bool FromText(const ORXUnicodeString& iText, Scalar& oValue) const;
    /// From a value of another parameter: a number of another quantity is of the wrong kind. `iType` is the value's
    /// type, and the value is not unset.
    bool FromScalar(const KnowledgeType& iType, const Scalar& iValue, Scalar& oValue) const;

    /**
     * From a document: a real takes numbers and whole number texts, with a unit where it has a quantity, an integer
     * integers, an enumeration its exact texts. Unset stays unset. @param oWhy receives what is wrong, such as "no text
     * of the enumeration: abc"
     */
    bool FromDocument(const DeclaredScalar& iValue, Scalar& oValue, std::string& oWhy) const;

    /// The value as text; "" when it is unset.
    ORXUnicodeString ToText(const Scalar& iValue) const;

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXCke::Boolean IsaKindOf(const ORXUnicodeString& iTypeName) override;
    ORXCke::Boolean IsaKindOf(const ORXICkeType_var& iType) override;
    ORXCke::Boolean IsaReal() override;
    ORXCke::Boolean IsaBoolean() override;
    ORXCke::Boolean IsaInteger() override;
    ORXCke::Boolean IsaString() override;

private:
    KnowledgeType(ValueKind iKind, const std::string& iName, KnowledgeType* iBase);

    ValueKind m_kind;
    ORXUnicodeString m_name;
    KnowledgeType* m_base;
    const Quantity* m_quantity = nullptr;
    std::vector<ORXUnicodeString> m_texts;
};

/// The shortest decimal that reads back the same.
ORXUnicodeString RealText(double iValue);

/// Reads the longest number that a text begins with, apart from blanks. @param oRest what stands behind it, without
/// blanks around it
bool ReadLeadingReal(std::string_view iText, double& oValue, std::string_view& oRest);

/// Reads a whole text, apart from blanks around it, as a finite number in C syntax.
bool ReadReal(std::string_view iText, double& oValue);
} // namespace VYRStandalone

#endif
