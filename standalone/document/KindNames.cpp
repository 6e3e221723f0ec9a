#include "KindNames.h"

#include "ORXTypeCode.h"

namespace
{
struct KindName
{
    const char* name;
    int code;
};

constexpr KindName Kinds[] = {
    {"real", tk_double},   {"integer", tk_integer},     {"boolean", tk_boolean},      {"enumeration", tk_enum},
    {"string", tk_string}, {"component", tk_component}, {"reference", tk_specobject}, {"list", tk_list},
};
} // namespace

namespace VYRStandalone
{
std::optional<int> TypeCodeOfKind(std::string_view iKind)
{
    for (const KindName& kind : Kinds)
        if (kind.name == iKind)
            return kind.code;
    return std::nullopt;
}

const char* KindOfTypeCode(int iTypeCode)
{
    for (const KindName& kind : Kinds)
        if (kind.code == iTypeCode)
            return kind.name;
    return "";
}

std::vector<std::string> KindNames(bool iWithList)
{
    std::vector<std::string> names;
    for (const KindName& kind : Kinds)
        if (iWithList || kind.code != tk_list)
            names.emplace_back(kind.name);
    return names;
}
} // namespace VYRStandalone
