#include "ObjectPath.h"

#include <algorithm>

#include "Failure.h"
#include "ListNames.h"
#include "PathNames.h"
#include "VYRCfdObjectAccess.h"
#include "VYRStandaloneCatalog.h"
#include "Wording.h"

namespace Tool
{
const char ObjectPathHelp[] =
    "A path begins with a top-level object, named by its display name, its name, its type or its position; of several "
    "that answer the first is taken. What stands behind the first \"/\" is followed from there, as configurations "
    "follow theirs: names of attributes, and in a list of objects any of the meanings above. A top-level object whose "
    "name holds a \"/\" cannot be reached by that name, but by its type or position.";

namespace
{
/// By which paths can begin with an object: its display name and its name, or else its type.
std::vector<std::string> NamesOf(const ORXISpecObject_var& iObject)
{
    std::vector<std::string> names;
    for (const std::string& name : {AliasOf(iObject), TextOf(iObject->GetName())})
        if (!name.empty() && name.find('/') == std::string::npos)
            names.push_back(name);
    if (names.empty())
        names.push_back(TextOf(iObject->GetType()));
    return names;
}

/// What to name in place of an object that is not there.
std::string InPlaceOf(std::string_view iName, const VYRStandalone::Model& iModel)
{
    std::vector<std::string> known;
    std::vector<std::string> first;
    for (const ORXISpecObject_var& object : iModel.Objects())
    {
        const std::vector<std::string> names = NamesOf(object);
        known.insert(known.end(), names.rbegin(), names.rend());
        first.push_back(names.back());
    }
    const std::string meant = DidYouMean(iName, known);
    if (!meant.empty())
        return meant;
    return iModel.Objects().empty() ? "; the model has no objects" : ThereAre(first);
}

[[noreturn]] void Fail(const std::string& iFile, const std::string& iMessage)
{
    throw Failure((iFile.empty() ? "" : OneLine(iFile) + ": ") + iMessage);
}

[[noreturn]] void FailNowhere(const std::string& iFile, const std::string& iPath, const std::string& iWhy)
{
    Fail(iFile, Quoted(iPath) + " leads nowhere: " + OneLine(iWhy));
}

bool HasAttribute(const ORXISpecObject_var& iObject, const std::string& iName)
{
    const std::vector<VYRStandalone::AttributeInfo> attributes = VYRStandalone::Attributes(iObject);
    return std::any_of(attributes.begin(), attributes.end(),
                       [&](const VYRStandalone::AttributeInfo& iOne) { return iOne.name == iName; });
}

VYRCfdObjectAccess Walk(const ORXISpecObject_var& iObject, const ORXUnicodeString& iRest, const std::string& iFile,
                        const std::string& iPath)
{
    try
    {
        return VYRCfdObjectAccess(ORXBaseUnknown_var(iObject)).GetByPath(iRest);
    }
    catch (const VYRStandalone::NullPointerError&)
    {
        // The cursor takes a list of objects to be full, and the host does not go on.
        FailNowhere(iFile, iPath, "a list on the way has an empty entry, and cannot be searched");
    }
}
} // namespace

Target FollowPath(const VYRStandalone::Model& iModel, const std::string& iFile, const std::string& iPath)
{
    ORXUnicodeString head;
    ORXUnicodeString rest;
    VYRCfdObjectAccess::SplitPath(ORXUnicodeString(iPath.data(), iPath.size()), head, rest);
    const ORXISpecObject_var spObject = head.IsEmpty() ? ORXISpecObject_var() : iModel.Find(head);
    if (!spObject)
        Fail(iFile, "no top-level object " + Quoted(head.View()) + InPlaceOf(head.View(), iModel));

    const VYRCfdObjectAccess access = Walk(spObject, rest, iFile, iPath);
    const ORXISpecObject_var spTarget = access.Self();
    if (access.IsNull() || !spTarget)
        FailNowhere(iFile, iPath, WhyNowhere(ORXBaseUnknown_var(spObject), rest));
    // Only an object has a type; at an attribute the name is the attribute's.
    return {spTarget, access.GetType().IsEmpty() ? TextOf(access.GetName()) : std::string()};
}
ORXISpecObject_var FollowToObject(const VYRStandalone::Model& iModel, const std::string& iFile,
                                  const std::string& iPath)
{
    const Target target = FollowPath(iModel, iFile, iPath);
    if (!target.attribute.empty())
        Fail(iFile, Quoted(iPath) + " is an attribute, no object");
    return target.object;
}

Target FollowToAttribute(const VYRStandalone::Model& iModel, const std::string& iFile, const std::string& iPath)
{
    const std::size_t slash = iPath.rfind('/');
    if (slash != std::string::npos)
    {
        const Target owner = FollowPath(iModel, iFile, iPath.substr(0, slash));
        const std::string name = iPath.substr(slash + 1);
        if (owner.attribute.empty() && HasAttribute(owner.object, name))
            return {owner.object, name};
    }
    // Leads nowhere, or past the attributes: to an entry of a list, or through a Choice.
    FollowPath(iModel, iFile, iPath);
    Fail(iFile, Quoted(iPath) + " is an object, no attribute");
}
} // namespace Tool
