#include "ConfigurationShape.h"

#include "VYRStandaloneErrors.h"

namespace Tool
{
namespace
{
/// A place in the document.
struct Place
{
    const std::string& file;
    const SourceValue& value;
    std::string path;

    void Expect(SourceValue::Kind iKind, const char* iWanted) const
    {
        if (!value.Is(iKind))
            throw VYRStandalone::DocumentError(file, path,
                                               std::string("must be ") + iWanted + ", not " + value.KindText());
    }

    Place Element(std::size_t iIndex) const
    {
        return {file, *value.elements[iIndex], path + "/" + std::to_string(iIndex)};
    }

    bool Has(const char* iKey) const { return value.Has(iKey); }
    Place Member(const char* iKey) const { return {file, *value.Find(iKey)->value, path + "/" + iKey}; }
};

void CheckItem(const Place& iItem)
{
    iItem.Expect(SourceValue::Kind::Object, "an object");
    for (const char* key : {"path", "type", "default", "defaultAutoKey", "display", "value", "config", "condition",
                            "choices", "Startups"})
        if (iItem.Has(key))
            iItem.Member(key).Expect(SourceValue::Kind::Text, "a text");
    if (iItem.Has("list"))
        iItem.Member("list").Expect(SourceValue::Kind::Boolean, "true or false");
}

void CheckConfiguration(const Place& iConfiguration)
{
    iConfiguration.Expect(SourceValue::Kind::Object, "an object");
    if (!iConfiguration.Has("name"))
        throw VYRStandalone::DocumentError(iConfiguration.file, iConfiguration.path + "/name", "is missing");
    iConfiguration.Member("name").Expect(SourceValue::Kind::Text, "a text");
    if (!iConfiguration.Has("config"))
        return;
    const Place items = iConfiguration.Member("config");
    items.Expect(SourceValue::Kind::Array, "an array");
    for (std::size_t i = 0; i < items.value.elements.size(); ++i)
        CheckItem(items.Element(i));
}
} // namespace

void CheckConfigurationShape(const SourceFile& iFile)
{
    const Place root{iFile.Path(), iFile.Root(), ""};
    root.Expect(SourceValue::Kind::Object, "an object");
    if (!root.Has("configurations"))
        return;
    const Place configurations = root.Member("configurations");
    configurations.Expect(SourceValue::Kind::Array, "an array");
    for (std::size_t i = 0; i < configurations.value.elements.size(); ++i)
        CheckConfiguration(configurations.Element(i));
}
} // namespace Tool
