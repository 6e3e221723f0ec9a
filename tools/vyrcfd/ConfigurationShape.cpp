#include "ConfigurationShape.h"

#include "ConfigurationKeys.h"
#include "VYRStandaloneErrors.h"
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

    void CheckFile(const SourceValue& iRoot) const
    {
        Expect(iRoot, Kind::Object, "a configuration file");
        // What names the schema is for editors.
        CheckKey(iRoot, "configurations", Kind::Array);
        for (const SourceValue* configuration : iRoot.ElementsOf("configurations"))
            CheckConfiguration(*configuration);
    }

private:
    void CheckConfiguration(const SourceValue& iConfiguration) const
    {
        Expect(iConfiguration, Kind::Object, "a configuration");
        if (!iConfiguration.Has("name"))
            Fail(iConfiguration, "the configuration has no \"name\"");
        CheckKeys(iConfiguration, ConfigurationKeys());
        for (const SourceValue* item : iConfiguration.ElementsOf("config"))
        {
            Expect(*item, Kind::Object, "an item");
            CheckKeys(*item, ItemKeys());
        }
    }

    void CheckKeys(const SourceValue& iObject, const KindsByKey& iKeys) const
    {
        for (const auto& [key, kind] : iKeys)
            CheckKey(iObject, key, kind);
    }

    void CheckKey(const SourceValue& iObject, const std::string& iKey, Kind iKind) const
    {
        if (const SourceMember* member = iObject.Find(iKey))
            Expect(*member->value, iKind, Quoted(iKey));
    }

    void Expect(const SourceValue& iValue, Kind iKind, const std::string& iWhat) const
    {
        if (!iValue.Is(iKind))
            Fail(iValue, WrongKindText(iWhat, iKind, iValue));
    }

    [[noreturn]] void Fail(const SourceValue& iValue, const std::string& iMessage) const
    {
        throw VYRStandalone::DocumentError(m_file, iValue.position.line, iValue.position.column, iMessage);
    }

    const std::string& m_file;
};
} // namespace

void CheckConfigurationShape(const SourceFile& iFile)
{
    Shape(iFile.Path()).CheckFile(iFile.Root());
}
} // namespace Tool
