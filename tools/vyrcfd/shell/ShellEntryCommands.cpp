/**
 * @file
 * Commands that make objects and entries, and take them away: new, insert, delete.
 */

#include <algorithm>
#include <unordered_set>

#include "AttributeReader.h"
#include "DocumentEntry.h"
#include "EntryList.h"
#include "Failure.h"
#include "ListNames.h"
#include "ORXTypeCode.h"
#include "ObjectRemoval.h"
#include "ShellCommands.h"
#include "Unreadable.h"
#include "Wording.h"

namespace Tool
{
namespace
{
using Names = std::unordered_set<std::string>;

/// By which the top-level objects are called.
Names NamesIn(const VYRStandalone::Model& iModel)
{
    Names names;
    for (const ORXISpecObject_var& object : iModel.Objects())
        names.insert({TextOf(object->GetName()), AliasOf(object)});
    return names;
}

/// The type and the first number that gives a name that no object bears.
std::string FreeName(const Names& iNames, const std::string& iType)
{
    for (std::size_t number = 1;; ++number)
        if (const std::string name = iType + "." + std::to_string(number); iNames.count(name) == 0)
            return name;
}

/// Where the last step of a path leads to.
struct Step
{
    /// The attribute, or the object that the path means.
    Target target;
    /// Position of the object in the list of the target, 0 where the path means no entry of a list.
    int position = 0;
};

/// The entry of a list that a name means, which leads to this object.
int PositionOf(const EntryList& iList, const ORXISpecObject_var& iObject, const std::string& iName)
{
    int first = 0;
    for (int position = iList.Size(); position > 0; --position)
    {
        const ORXISpecObject_var entry = iList.At(position);
        if (!entry || entry->IsEqual(iObject.Pointer()) == 0)
            continue;
        if (std::to_string(position) == iName)
            return position;
        first = position;
    }
    return first;
}

bool IsAttribute(const Target& iOwner, const std::string& iName)
{
    const std::vector<VYRStandalone::AttributeInfo> attributes = VYRStandalone::Attributes(iOwner.object);
    return std::any_of(attributes.begin(), attributes.end(),
                       [&](const VYRStandalone::AttributeInfo& iOne) { return iOne.name == iName; });
}

/// @throws Failure where the path leads nowhere
Step LastStep(const ShellSession& iSession, const std::string& iPath)
{
    const std::size_t slash = iPath.rfind('/');
    if (slash == std::string::npos)
        return {{iSession.Object(iPath), {}}, 0};
    const std::string head = iPath.substr(0, slash);
    const std::string name = iPath.substr(slash + 1);
    const Target owner = FollowPath(iSession.Model(), {}, head);
    if (owner.attribute.empty() && IsAttribute(owner, name))
        return {{owner.object, name}, 0};
    const ORXISpecObject_var spObject = iSession.Object(iPath);
    if (owner.attribute.empty())
        return {{spObject, {}}, 0};
    return {owner, PositionOf(EntryList(owner, head), spObject, name)};
}

void DeleteObject(ShellSession& ioSession, const ORXISpecObject_var& iObject, const std::string& iPath)
{
    CheckMayLeave(iObject, iPath);
    ioSession.Change([&] { RemoveObject(ioSession.Model(), iObject); });
}

void DeleteEntry(ShellSession& ioSession, const EntryList& iList, int iPosition, const std::string& iPath)
{
    const ORXISpecObject_var spPart = iList.HoldsParts() ? iList.At(iPosition) : ORXISpecObject_var();
    if (!!spPart && iList.Count(spPart) == 1)
        DeleteObject(ioSession, spPart, iPath);
    else
        ioSession.Change([&] { iList.Remove(iPosition); });
}

void DeleteReference(ShellSession& ioSession, const Target& iTarget, const std::string& iPath)
{
    const ORXISpecAttrAccess_var spAccess = iTarget.object;
    const ORXISpecAttrKey_var spKey = ORXISpecAttrKey_var::Adopt(spAccess->GetAttrKey(iTarget.attribute.c_str()));
    ioSession.Change([&] {
        if (spAccess->SetSpecObject(spKey, ORXISpecObject_var()) < 0)
            throw Failure(Quoted(iPath) + " could not be emptied");
    });
}

void DeleteAttribute(ShellSession& ioSession, const Target& iTarget, const std::string& iPath)
{
    const VYRStandalone::AttributeInfo info = InfoOf(iTarget);
    if (info.type == tk_list)
        throw Failure(Quoted(iPath) + " is a list: name the position of an entry, as in delete " + iPath + " 1");
    if (IsScalar(info.type))
        throw Failure(Quoted(iPath) + " is a value, which unset puts back on its default");
    const ORXISpecObject_var spObject = ReadObject(iTarget.object, info.name);
    if (!spObject)
        throw Failure(Quoted(iPath) + " is empty");
    if (info.type == tk_specobject)
        DeleteReference(ioSession, iTarget, iPath);
    else
        DeleteObject(ioSession, spObject, iPath);
}

/// Whether the model has been replaced by one that holds the value.
bool IsInserted(ShellSession& ioSession, const std::optional<std::string>& iModel)
{
    try
    {
        if (iModel)
            ioSession.Replace(*iModel);
        return iModel.has_value();
    }
    catch (const VYRStandalone::DocumentError&)
    {
        return false;
    }
}

void InsertValue(ShellSession& ioSession, const Target& iTarget, const EntryList& iList,
                 const ShellArguments& iArguments, int iPosition)
{
    const VYRStandalone::AttributeInfo entry = iList.EntryInfo();
    if (!IsInserted(ioSession, WithEntry(ioSession.Model(), iTarget, entry, iArguments[1], iPosition)))
        throw Failure(Quoted(iArguments[0]) + ": " + WhyUnreadable(entry, iArguments[1]));
    // The object, which is another one now, has not been told.
    EntryList(ioSession.Attribute(iArguments[0]), iArguments[0]).Touch(iPosition);
}
} // namespace

void ShellNew(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const std::string& type = iArguments[0];
    const std::vector<std::string> types = VYRStandalone::TypeNames();
    if (std::find(types.begin(), types.end(), type) == types.end())
        throw Failure("no feature type " + Quoted(type) + DidYouMean(type, types));
    const Names names = NamesIn(ioSession.Model());
    const std::string name = iArguments.size() == 2 ? iArguments[1] : FreeName(names, type);
    if (name.empty())
        throw Failure("\"\" is no name");
    if (names.count(name) != 0)
        ioSession.Reports().Note("an object is called " + Quoted(name) + " already; the name means that one");
    ioSession.Change([&] { ioSession.Create(type, name); });
}

void ShellInsert(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const Target target = ioSession.Attribute(iArguments[0]);
    const EntryList list(target, iArguments[0]);
    const int behind = list.Size() + 1;
    const int position = iArguments.size() == 3 ? list.Position(iArguments[2], behind) : behind;
    const ORXISpecObject_var spObject = list.HoldsObjects() ? ioSession.Object(iArguments[1]) : ORXISpecObject_var();
    if (list.HoldsParts())
        CheckMayLeave(spObject, iArguments[1]);
    ioSession.Change([&] {
        if (!!spObject)
            list.Insert(spObject, position);
        else if (list.EntryInfo().type == tk_string)
            list.Insert(iArguments[1], position);
        else
            InsertValue(ioSession, target, list, iArguments, position);
    });
}

void ShellDelete(ShellSession& ioSession, const ShellArguments& iArguments)
{
    const std::string& path = iArguments[0];
    if (iArguments.size() == 2)
    {
        const EntryList list(ioSession.Attribute(path), path);
        DeleteEntry(ioSession, list, list.Position(iArguments[1], list.Size()), path + "/" + iArguments[1]);
        return;
    }
    const Step step = LastStep(ioSession, path);
    if (step.position != 0)
        DeleteEntry(ioSession, EntryList(step.target, path), step.position, path);
    else if (step.target.attribute.empty())
        DeleteObject(ioSession, step.target.object, path);
    else
        DeleteAttribute(ioSession, step.target, path);
}
} // namespace Tool
