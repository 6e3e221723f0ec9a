#include "BuiltInTypes.h"

namespace VYRStandalone
{
namespace
{
AttributeDeclaration String(const char* iName)
{
    return {iName, tk_string};
}

AttributeDeclaration ListOf(int iCode, const char* iName)
{
    return {iName, tk_list, iCode};
}

AttributeDeclaration DefaultManagement()
{
    AttributeDeclaration component{"defaultManagement", tk_component};
    component.componentType = "VYRCfdDefaultManagement";
    return component;
}
} // namespace

CatalogDeclaration BuiltInCatalog()
{
    return {"VYRCfdBase",
            {
                // Replaced records stay in their container, so that the list only refers to them.
                {"VYRCfdDefaultManagement", "", {ListOf(tk_specobject, "configuration")}, {}},
                {"VYRCfdValues", "", {DefaultManagement()}, {}},
                {"VYRCfdChoice",
                 "",
                 {
                     String("value"),
                     ListOf(tk_string, "choices"),
                     ListOf(tk_string, "Startups"),
                     String("dataName"),
                     String("display"),
                     // Made by the Choice's first update, never with the Choice.
                     {"Data", tk_component},
                     DefaultManagement(),
                 },
                 {}},
                {"VYRCfdConfigItem",
                 "",
                 {String("type"), String("path"), String("default"), String("defaultAutoKey"), String("condition"),
                  String("config")},
                 {}},
            }};
}
} // namespace VYRStandalone
