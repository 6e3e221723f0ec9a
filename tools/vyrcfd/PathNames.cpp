#include "PathNames.h"

#include "ListNames.h"
#include "ORXISpecAttrKey.h"
#include "VYRStandaloneCatalog.h"
#include "Wording.h"

namespace Tool
{
namespace
{
bool IsAttribute(const VYRCfdObjectAccess& iCursor)
{
    return iCursor.GetType().IsEmpty();
}

std::vector<std::string> EntriesOf(const VYRCfdObjectAccess& iList)
{
    std::vector<VYRCfdObjectAccess> entries;
    iList.List(entries);
    std::vector<ORXISpecObject_var> objects;
    for (const VYRCfdObjectAccess& entry : entries)
        objects.emplace_back(entry.Self());
    return ListNames(objects);
}

ORXISpecAttrKey_var KeyNamed(const VYRCfdObjectAccess& iFrom, const std::string& iName)
{
    return ORXISpecAttrKey_var::Adopt(iFrom.Access()->GetAttrKey(ORXUnicodeString(iName.data(), iName.size())));
}

/// What to name in place of what is not there. Nobody looks for the default management who does not name it.
std::string Instead(const std::string& iName, std::vector<std::string> iKnown)
{
    const std::string meant = DidYouMean(iName, iKnown);
    if (!meant.empty())
        return meant;
    std::erase(iKnown, "defaultManagement");
    return ThereAre(iKnown);
}

/// What a Choice has; empty for any other object.
std::string ValueOf(const VYRCfdObjectAccess& iObject)
{
    ORXUnicodeString value;
    if (iObject.IsSubTypeOf("VYRCfdChoice"))
        iObject["value"].GetString(value);
    return TextOf(value);
}
} // namespace

std::vector<std::string> NamesFrom(const VYRCfdObjectAccess& iFrom)
{
    if (IsAttribute(iFrom))
        return iFrom.IsObjectList() ? EntriesOf(iFrom) : std::vector<std::string>();
    std::vector<std::string> names;
    for (const VYRStandalone::AttributeInfo& info : VYRStandalone::Attributes(ORXISpecObject_var(iFrom.Self())))
        names.push_back(info.name);
    if (const std::string value = ValueOf(iFrom); !value.empty())
        names.push_back(value);
    return names;
}

std::string WhyNoFurther(const VYRCfdObjectAccess& iFrom, const std::string& iName)
{
    const bool isAttribute = IsAttribute(iFrom);
    if (isAttribute && !iFrom.IsObjectList())
        return Quoted(TextOf(iFrom.GetName())) + " holds no objects that a path could lead on to";
    const ORXISpecAttrKey_var spKey = isAttribute ? ORXISpecAttrKey_var() : KeyNamed(iFrom, iName);
    if (!!spKey && iFrom.Access()->HasAttribute(spKey.Pointer()) == ORXFalse)
        return "the attribute " + Quoted(iName) + " is optional, and this " + Quoted(TextOf(iFrom.GetType())) +
               " does not have it";
    const VYRCfdObjectAccess next = iFrom.Get(ORXUnicodeString(iName.data(), iName.size()));
    if (!next.IsNull())
        return {};
    if (!!spKey)
        return Quoted(iName) + " holds no object";
    return !isAttribute && ValueOf(iFrom) == iName ? "the choice " + Quoted(iName) + " has no data object"
                                                   : TextOf(next.GetError());
}

std::string WhyNowhere(const VYRCfdObjectAccess& iStart, const ORXUnicodeString& iPath)
{
    VYRCfdObjectAccess cursor = iStart;
    ORXUnicodeString rest = iPath;
    while (!rest.IsEmpty())
    {
        ORXUnicodeString head;
        ORXUnicodeString tail;
        VYRCfdObjectAccess::SplitPath(rest, head, tail);
        // There the cursor stops.
        if (head.IsEmpty())
            return {};
        const std::string name = TextOf(head);
        const std::string why = WhyNoFurther(cursor, name);
        if (!why.empty())
        {
            // What is there and leads nowhere all the same is not misspelt.
            const bool isThere = !IsAttribute(cursor) && (!!KeyNamed(cursor, name) || ValueOf(cursor) == name);
            return isThere ? why : why + Instead(name, NamesFrom(cursor));
        }
        cursor = cursor.Get(head);
        rest = tail;
    }
    return {};
}
} // namespace Tool
