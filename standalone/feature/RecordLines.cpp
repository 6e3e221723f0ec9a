#include "RecordLines.h"

#include "FeatureObject.h"

namespace VYRStandalone
{
namespace
{
std::string ObjectText(const FeatureObject* iObject)
{
    return iObject != nullptr ? std::string(iObject->Name().View()) : "(null)";
}

std::string Place(const FeatureObject& iObject, std::string_view iName, int iIndex)
{
    std::string place = iObject.Path() + '.' + std::string(iName);
    if (iIndex != 0)
        place += '[' + std::to_string(iIndex) + ']';
    return place;
}

/// Entries in brackets, whatever their kind.
class EntriesText
{
public:
    explicit EntriesText(const KnowledgeType* iType) : m_type(iType) {}

    template <class Entry> std::string operator()(const std::vector<Entry>& iEntries) const
    {
        std::string text = "[";
        const char* separator = "";
        for (const Entry& entry : iEntries)
        {
            text += separator + One(entry);
            separator = ", ";
        }
        return text + ']';
    }

private:
    template <class Entry> std::string One(const Entry& iEntry) const
    {
        if constexpr (std::is_same_v<Entry, FeatureObject*>)
            return ObjectText(iEntry);
        else if constexpr (std::is_same_v<Entry, int>)
            // Lists keep booleans as integers.
            return m_type->Kind() == ValueKind::Boolean ? RecordLines::Text(iEntry != 0)
                                                        : RecordLines::Text(*m_type, iEntry);
        else
            return std::string(m_type->ToText(Scalar(iEntry)).View());
    }

    const KnowledgeType* m_type;
};
} // namespace

std::string RecordLines::Text(const KnowledgeType& iType, int iValue)
{
    return std::string(iType.ToText(Scalar(iValue)).View());
}

std::string RecordLines::Text(ORXIValue& iValue)
{
    return iValue.IsValuated() != 0 ? std::string(iValue.AsString().View()) : "(none)";
}

std::string RecordLines::Text(ORXISpecObject* iObject)
{
    return iObject != nullptr ? std::string(iObject->GetName().View()) : "(null)";
}

std::string RecordLines::Write(const FeatureObject& iObject, std::string_view iName, int iIndex,
                               const std::string& iText)
{
    return "write " + Place(iObject, iName, iIndex) + " = " + iText;
}

std::string RecordLines::Call(const char* iVerb, const FeatureObject& iObject, std::string_view iName, int iIndex,
                              const std::string& iText)
{
    const std::string call = std::string(iVerb) + ' ' + Place(iObject, iName, iIndex);
    return iText.empty() ? call : call + " = " + iText;
}

std::string RecordLines::Advise(const FeatureObject& iObject, const FeatureKey& iKey)
{
    return "advise " + Place(iObject, iKey.Name().View(), 0) + " = " + Present(iObject, iKey);
}

std::string RecordLines::Allow(const FeatureObject& iObject, const FeatureKey& iKey,
                               const ORXListValORXUnicodeString& iTexts)
{
    std::string line = "allow " + Place(iObject, iKey.Name().View(), 0) + " = [";
    for (int i = 1; i <= iTexts.Size(); ++i)
    {
        if (i > 1)
            line += ", ";
        line += iTexts[i].View();
    }
    return line + ']';
}

std::string RecordLines::Present(const FeatureObject& iObject, const FeatureKey& iKey)
{
    switch (iKey.Slot())
    {
    case SlotKind::List:
        return std::visit(EntriesText(iKey.Knowledge()), iObject.Entries(iKey));
    case SlotKind::Object:
        return iObject.Object(iKey) != nullptr ? ObjectText(iObject.Object(iKey)) : "(none)";
    case SlotKind::Value:
        break;
    }
    const Scalar& value = iObject.Value(iKey);
    if (std::holds_alternative<std::monostate>(value))
        return "(none)";
    return std::string(iKey.Knowledge()->ToText(value).View());
}
} // namespace VYRStandalone
