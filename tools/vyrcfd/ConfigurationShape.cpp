#include "ConfigurationShape.h"

#include <fstream>
#include <iterator>

#include "VYRStandaloneErrors.h"
#include "VYRStandaloneServices.h"

namespace Tool
{
namespace
{
const char* KindText(const rapidjson::Value& iValue)
{
    switch (iValue.GetType())
    {
    case rapidjson::kNullType:
        return "null";
    case rapidjson::kFalseType:
    case rapidjson::kTrueType:
        return "a boolean";
    case rapidjson::kObjectType:
        return "an object";
    case rapidjson::kArrayType:
        return "an array";
    case rapidjson::kStringType:
        return "a text";
    case rapidjson::kNumberType:
        break;
    }
    return "a number";
}

/// A place in the document.
struct Place
{
    const std::string& file;
    const rapidjson::Value& value;
    std::string path;

    void Expect(bool iIsRight, const char* iWanted) const
    {
        if (!iIsRight)
            throw VYRStandalone::DocumentError(file, path,
                                               std::string("must be ") + iWanted + ", not " + KindText(value));
    }

    Place Element(rapidjson::SizeType iIndex) const
    {
        return {file, value[iIndex], path + "/" + std::to_string(iIndex)};
    }

    bool Has(const char* iKey) const { return value.HasMember(iKey); }
    Place Member(const char* iKey) const { return {file, value[iKey], path + "/" + iKey}; }
};

void CheckItem(const Place& iItem)
{
    iItem.Expect(iItem.value.IsObject(), "an object");
    for (const char* key : {"path", "type", "default", "defaultAutoKey", "display", "value", "config", "condition",
                            "choices", "Startups"})
        if (iItem.Has(key))
            iItem.Member(key).Expect(iItem.value[key].IsString(), "a text");
    if (iItem.Has("list"))
        iItem.Member("list").Expect(iItem.value["list"].IsBool(), "true or false");
}

void CheckConfiguration(const Place& iConfiguration)
{
    iConfiguration.Expect(iConfiguration.value.IsObject(), "an object");
    if (!iConfiguration.Has("name"))
        throw VYRStandalone::DocumentError(iConfiguration.file, iConfiguration.path + "/name", "is missing");
    iConfiguration.Member("name").Expect(iConfiguration.value["name"].IsString(), "a text");
    if (!iConfiguration.Has("config"))
        return;
    const Place items = iConfiguration.Member("config");
    items.Expect(items.value.IsArray(), "an array");
    for (rapidjson::SizeType i = 0; i < items.value.Size(); ++i)
        CheckItem(items.Element(i));
}

void CheckFile(const Place& iRoot)
{
    iRoot.Expect(iRoot.value.IsObject(), "an object");
    if (!iRoot.Has("configurations"))
        return;
    const Place configurations = iRoot.Member("configurations");
    configurations.Expect(configurations.value.IsArray(), "an array");
    for (rapidjson::SizeType i = 0; i < configurations.value.Size(); ++i)
        CheckConfiguration(configurations.Element(i));
}
} // namespace

rapidjson::Document ReadConfigurationDocument(const std::string& iFile)
{
    VYRStandalone::CheckJson(iFile);

    std::ifstream stream(iFile, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    rapidjson::Document document;
    // Any depth of nesting, as the host reads it.
    document.Parse<rapidjson::kParseIterativeFlag>(text.data(), text.size());
    if (document.HasParseError())
        throw VYRStandalone::DocumentError(iFile, "", "has changed while it was read");
    CheckFile({iFile, document, ""});
    return document;
}
} // namespace Tool
