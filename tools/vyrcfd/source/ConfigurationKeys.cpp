#include "ConfigurationKeys.h"

namespace Tool
{
namespace
{
using Kind = SourceValue::Kind;

const char* WantedText(Kind iKind)
{
    switch (iKind)
    {
    case Kind::Boolean:
        return "true or false";
    case Kind::Array:
        return "an array";
    case Kind::Object:
        return "an object";
    default:
        return "a text";
    }
}
} // namespace

const KindsByKey& FileKeys()
{
    static const KindsByKey keys{{"$schema", Kind::Text}, {"configurations", Kind::Array}};
    return keys;
}

const KindsByKey& ConfigurationKeys()
{
    static const KindsByKey keys{{"name", Kind::Text}, {"config", Kind::Array}};
    return keys;
}

const KindsByKey& ItemKeys()
{
    static const KindsByKey keys{{"path", Kind::Text},    {"type", Kind::Text},           {"default", Kind::Text},
                                 {"display", Kind::Text}, {"defaultAutoKey", Kind::Text}, {"value", Kind::Text},
                                 {"list", Kind::Boolean}, {"config", Kind::Text},         {"condition", Kind::Text},
                                 {"choices", Kind::Text}, {"Startups", Kind::Text}};
    return keys;
}

std::vector<std::string> NamesOf(const KindsByKey& iKeys)
{
    std::vector<std::string> names;
    for (const auto& [name, kind] : iKeys)
        if (name != "$schema")
            names.push_back(name);
    return names;
}

std::string WrongKindText(const std::string& iWhat, SourceValue::Kind iWanted, const SourceValue& iValue)
{
    return iWhat + " must be " + WantedText(iWanted) + ", not " + iValue.KindText();
}
} // namespace Tool
