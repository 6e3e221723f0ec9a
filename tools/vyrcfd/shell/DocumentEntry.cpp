#include "DocumentEntry.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include <rapidjson/document.h>
#include <rapidjson/pointer.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "AttributeReader.h"
#include "Failure.h"
#include "ORXTypeCode.h"

namespace Tool
{
namespace
{
/// Numbers to the last digit, and as deep as models may be.
constexpr unsigned Flags = rapidjson::kParseFullPrecisionFlag | rapidjson::kParseIterativeFlag;

/// A step of a JSON pointer.
std::string Step(const std::string& iName)
{
    std::string step = "/";
    for (const char character : iName)
        if (character == '~' || character == '/')
            step += character == '~' ? "~0" : "~1";
        else
            step += character;
    return step;
}

/// Where an attribute stands inside of its object.
std::string PlaceOf(const VYRStandalone::AttributeInfo& iAttribute)
{
    const bool isAdded = iAttribute.added || iAttribute.optional;
    return isAdded ? "/added" + Step(iAttribute.name) + "/value" : "/values" + Step(iAttribute.name);
}

bool IsSame(const ORXISpecObject_var& iLeft, const ORXISpecObject_var& iRight)
{
    return !!iLeft && iLeft->IsEqual(iRight.Pointer()) != 0;
}

/// Position from 0 of an object among others, their number if it is not there.
std::size_t IndexOf(const ORXISpecObject_var& iObject, const std::vector<ORXISpecObject_var>& iObjects)
{
    const auto found = std::find_if(iObjects.begin(), iObjects.end(),
                                    [&](const ORXISpecObject_var& iOne) { return IsSame(iOne, iObject); });
    return static_cast<std::size_t>(found - iObjects.begin());
}

/// Where a component stands inside of its owner.
std::string PlaceIn(const ORXISpecObject_var& iOwner, const ORXISpecObject_var& iPart)
{
    const ORXISpecAttrAccess_var spAccess = iOwner;
    for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(iOwner))
    {
        if (attribute.type == tk_component && IsSame(ReadObject(spAccess, attribute.name), iPart))
            return PlaceOf(attribute);
        if (attribute.type != tk_list || attribute.listType != tk_component)
            continue;
        const std::vector<ORXISpecObject_var> entries = ReadObjects(spAccess, attribute.name);
        if (const std::size_t index = IndexOf(iPart, entries); index != entries.size())
            return PlaceOf(attribute) + "/" + std::to_string(index);
    }
    return {};
}

/// Where an object stands in the text of its model.
std::string PlaceOf(const VYRStandalone::Model& iModel, const ORXISpecObject_var& iObject)
{
    std::string place;
    ORXISpecObject_var spObject = iObject;
    while (const ORXISpecObject_var spOwner = ORXISpecObject_var::Adopt(spObject->GetOwner()))
    {
        place = PlaceIn(spOwner, spObject) + place;
        spObject = spOwner;
    }
    return "/objects/" + std::to_string(IndexOf(spObject, iModel.Objects())) + place;
}

/// The whole text as a number.
template <class Number> std::optional<Number> NumberIn(const std::string& iText)
{
    Number number{};
    const std::from_chars_result end = std::from_chars(iText.data(), iText.data() + iText.size(), number);
    const bool isWhole = end.ec == std::errc() && end.ptr == iText.data() + iText.size();
    return isWhole ? std::optional<Number>(number) : std::nullopt;
}

std::optional<bool> BooleanIn(const std::string& iText)
{
    std::string text = iText;
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char iOne) { return iOne >= 'A' && iOne <= 'Z' ? static_cast<char>(iOne + 32) : iOne; });
    if (text == "true" || text == "1")
        return true;
    return text == "false" || text == "0" ? std::optional<bool>(false) : std::nullopt;
}

/// The text as documents hold such a value; null for a text that is none.
rapidjson::Value DocumentValue(const VYRStandalone::AttributeInfo& iEntry, const std::string& iText,
                               rapidjson::Document& ioDocument)
{
    const std::optional<double> real = NumberIn<double>(iText);
    if (iEntry.type == tk_double && real && std::isfinite(*real))
        return rapidjson::Value(*real);
    const std::optional<int> integer = NumberIn<int>(iText);
    if (iEntry.type == tk_integer && integer)
        return rapidjson::Value(*integer);
    const std::optional<bool> boolean = BooleanIn(iText);
    if (iEntry.type == tk_boolean && boolean)
        return rapidjson::Value(*boolean);
    const bool isKnown = std::find(iEntry.values.begin(), iEntry.values.end(), iText) != iEntry.values.end();
    // A real may be a text with a unit.
    if ((iEntry.type == tk_double && !real) || (iEntry.type == tk_enum && isKnown))
        return rapidjson::Value(iText.data(), static_cast<rapidjson::SizeType>(iText.size()),
                                ioDocument.GetAllocator());
    return rapidjson::Value();
}
} // namespace

std::optional<std::string> WithEntry(const VYRStandalone::Model& iModel, const Target& iList,
                                     const VYRStandalone::AttributeInfo& iEntry, const std::string& iText,
                                     int iPosition)
{
    const std::string model = iModel.Text();
    rapidjson::Document document;
    document.Parse<Flags>(model.data(), model.size());
    const std::string place = PlaceOf(iModel, iList.object) + PlaceOf(iEntry);
    rapidjson::Value* const list = rapidjson::Pointer(place.data(), place.size()).Get(document);
    if (list == nullptr || !list->IsArray() || static_cast<int>(list->Size()) + 1 < iPosition)
        throw Failure("vyrcfd: internal error: the list does not stand in the model's text");
    rapidjson::Value entry = DocumentValue(iEntry, iText, document);
    if (entry.IsNull())
        return std::nullopt;
    list->PushBack(entry, document.GetAllocator());
    std::rotate(list->Begin() + (iPosition - 1), list->End() - 1, list->End());
    rapidjson::StringBuffer text;
    rapidjson::Writer<rapidjson::StringBuffer> writer(text);
    document.Accept(writer);
    return std::string(text.GetString(), text.GetSize());
}
} // namespace Tool
