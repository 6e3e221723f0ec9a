#include "ValueReader.h"

#include "KnowledgeType.h"
#include "Wording.h"

namespace VYRStandalone
{
namespace
{
/// The texts of an enumeration, for one that it does not have.
std::string Choices(const DeclaredScalar& iValue, const KnowledgeType& iType)
{
    const auto* text = std::get_if<std::string>(&iValue);
    if (text == nullptr || iType.Kind() != ValueKind::Enumeration)
        return {};
    std::vector<std::string> known;
    for (const ORXUnicodeString& possible : iType.Texts())
        known.emplace_back(possible.View());
    return InsteadOf(*text, known);
}

Scalar ReadEntry(const DocumentNode& iNode, const KnowledgeType& iType)
{
    if (iNode.IsNull())
        iNode.Fail("a list of values has no empty entries");
    return ReadScalar(iNode, iType);
}

template <class Entry, class Stored> std::vector<Entry> ReadEach(const DocumentNode& iNode, const KnowledgeType& iType)
{
    std::vector<Entry> entries;
    for (const DocumentNode& element : iNode.Elements())
        entries.push_back(std::get<Stored>(ReadEntry(element, iType)));
    return entries;
}
} // namespace

Scalar ReadScalar(const DocumentNode& iNode, const KnowledgeType& iType)
{
    const DeclaredScalar declared = iNode.Single();
    if (iType.Kind() == ValueKind::Integer && iNode.IsWhole() && !std::holds_alternative<int>(declared))
        iNode.Fail("out of the range of an integer, which has 32 bits");
    Scalar value;
    std::string why;
    if (!iType.FromDocument(declared, value, why))
        iNode.Fail(why + Choices(declared, iType));
    return value;
}

ListEntries ReadEntries(const DocumentNode& iNode, const KnowledgeType& iType)
{
    switch (iType.Kind())
    {
    case ValueKind::Real:
        return ReadEach<double, double>(iNode, iType);
    case ValueKind::Boolean:
        return ReadEach<int, bool>(iNode, iType);
    case ValueKind::String:
        return ReadEach<ORXUnicodeString, ORXUnicodeString>(iNode, iType);
    case ValueKind::Integer:
    case ValueKind::Enumeration:
        break;
    }
    return ReadEach<int, int>(iNode, iType);
}
} // namespace VYRStandalone
