#include "AttributeKind.h"

#include "ORXTypeCode.h"

namespace Tool
{
const char* NameOfKind(int iType)
{
    switch (iType)
    {
    case tk_double:
        return "real";
    case tk_boolean:
        return "boolean";
    case tk_enum:
        return "enumeration";
    case tk_string:
        return "string";
    case tk_specobject:
        return "reference";
    case tk_list:
        return "list";
    case tk_component:
        return "component";
    case tk_integer:
        return "integer";
    default:
        break;
    }
    return "unknown";
}
} // namespace Tool
