#include "ConfigurationShape.h"

#include "ConfigurationKeys.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Kind = SourceValue::Kind;

class Shape
{
public:
    explicit Shape(const std::string& iFile) : m_file(iFile) {}

    std::vector<std::string> OdditiesIn(const SourceValue& iRoot)
    {
        // What names the schema is for editors.
        CheckKey(iRoot, "configurations", Kind::Array);
        for (const SourceValue* configuration : iRoot.ElementsOf("configurations"))
            CheckConfiguration(*configuration);
        return std::move(m_oddities);
    }

private:
    void CheckConfiguration(const SourceValue& iConfiguration)
    {
        Expect(iConfiguration, Kind::Object, "a configuration");
        if (iConfiguration.Is(Kind::Object) && !iConfiguration.Has("name"))
            Add(iConfiguration, "the configuration has no \"name\"");
        CheckKeys(iConfiguration, ConfigurationKeys());
        for (const SourceValue* item : iConfiguration.ElementsOf("config"))
        {
            Expect(*item, Kind::Object, "an item");
            CheckKeys(*item, ItemKeys());
        }
    }

    void CheckKeys(const SourceValue& iObject, const KindsByKey& iKeys)
    {
        for (const auto& [key, kind] : iKeys)
            CheckKey(iObject, key, kind);
    }

    void CheckKey(const SourceValue& iObject, const std::string& iKey, Kind iKind)
    {
        if (const SourceMember* member = iObject.Find(iKey))
            Expect(*member->value, iKind, Quoted(iKey));
    }

    void Expect(const SourceValue& iValue, Kind iKind, const std::string& iWhat)
    {
        if (!iValue.Is(iKind))
            Add(iValue, WrongKindText(iWhat, iKind, iValue));
    }

    void Add(const SourceValue& iValue, const std::string& iMessage)
    {
        m_oddities.push_back(OneLine(m_file) + ":" + std::to_string(iValue.position.line) + ":" +
                             std::to_string(iValue.position.column) + ": " + iMessage);
    }

    const std::string& m_file;
    std::vector<std::string> m_oddities;
};
} // namespace

std::vector<std::string> OdditiesOf(const SourceFile& iFile)
{
    return Shape(iFile.Path()).OdditiesIn(iFile.Root());
}
} // namespace Tool
