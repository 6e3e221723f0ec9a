#include "OurTypes.h"

#include "VYRStandaloneCatalog.h"

namespace Bench
{
namespace
{
const char* KindName(Entry::Kind iKind)
{
    switch (iKind)
    {
    case Entry::Kind::Real:
        return "real";
    case Entry::Kind::Integer:
        return "integer";
    case Entry::Kind::Boolean:
        return "boolean";
    case Entry::Kind::String:
        return "string";
    case Entry::Kind::Level:
        return "component";
    }
    return "";
}

/// The value of one entry as JSON.
std::string ValueOf(const Entry& iEntry)
{
    const std::string whole = JsonOf({{iEntry}});
    const std::size_t colon = whole.find(": ");
    return whole.substr(colon + 2, whole.size() - colon - 3);
}

/// The innermost type first, since a catalog names what stands before.
std::string TypesOf(const std::string& iName, int iNumber, const Level& iLevel, const std::string& iBase)
{
    std::string inner;
    std::string attributes;
    for (const Entry& entry : iLevel.entries)
    {
        attributes += attributes.empty() ? "" : ",\n";
        attributes += R"({ "name": ")" + entry.name + R"(", "kind": ")" + KindName(entry.kind) + '"';
        if (entry.kind == Entry::Kind::Level)
        {
            inner = TypesOf(iName, iNumber + 1, *entry.level, iBase) + ",\n";
            attributes += R"(, "type": ")" + iName + std::to_string(iNumber + 1) + '"';
        }
        else
            attributes += R"(, "default": )" + ValueOf(entry);
        attributes += " }";
    }
    const std::string base = iBase.empty() ? "" : R"("base": ")" + iBase + R"(", )";
    return inner + R"({ "name": ")" + iName + std::to_string(iNumber) + "\", " + base + "\"attributes\": [\n" +
           attributes + "] }";
}
} // namespace

void DeclareTypes(const std::string& iName, const Level& iLevel, const std::string& iBase)
{
    VYRStandalone::DeclareCatalog(R"({ "catalog": ")" + iName + R"(", "uses": ["VYRCfdBase"], "types": [)" +
                                      TypesOf(iName, 1, iLevel, iBase) + "] }",
                                  iName);
}
} // namespace Bench
