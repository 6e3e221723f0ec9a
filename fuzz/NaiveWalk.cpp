#include "NaiveWalk.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

#include "NaiveText.h"
#include "ORXIAlias.h"

namespace Naive
{
namespace
{
Place Nowhere(const std::string& iError)
{
    Place place;
    place.error = iError;
    return place;
}

bool IsObjectCode(int iCode)
{
    return iCode == tk_component || iCode == tk_specobject;
}

/// To an attribute that exists: an object is followed.
Place ByKey(const Place& iPlace, const ORXISpecAttrKey_var& iKey)
{
    const ORXISpecAttrAccess_var access = iPlace.object;
    if (IsObjectCode(iKey->GetType()))
        return PlaceOf(ORXISpecObject_var::Adopt(access->GetSpecObject(iKey, 0)));
    Place place = iPlace;
    place.key = iKey;
    return place;
}

std::string Value(const ORXISpecObject_var& iChoice)
{
    const ORXISpecAttrAccess_var access = iChoice;
    const auto key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey("value"));
    return std::string(access->GetString(key, 0).View());
}

Place OnObject(const Place& iPlace, const std::string& iName)
{
    const ORXISpecAttrAccess_var access = iPlace.object;
    // The host takes names up to their first zero.
    if (const auto key = ORXISpecAttrKey_var::Adopt(access->GetAttrKey(iName.c_str())))
        return ByKey(iPlace, key);
    if (iPlace.object->IsSubTypeOf("VYRCfdChoice") != ORXFalse && Value(iPlace.object) == iName)
        return ByKey(iPlace, ORXISpecAttrKey_var::Adopt(access->GetAttrKey("Data")));
    if (iName != "SonsList")
    {
        const Place sons = OnObject(iPlace, "SonsList");
        if (sons.error.empty() && (!sons.key || access->HasAttribute(sons.key) != ORXFalse))
            return ByName(sons, iName);
    }
    return Nowhere("No attribute " + iName);
}

std::string DisplayName(const ORXISpecObject_var& iObject)
{
    const ORXIAlias_var alias = iObject;
    return alias ? std::string(alias->GetAlias().View()) : std::string();
}

/// As the C library scans it.
bool IsPosition(const std::string& iName, int iSize, int& oPosition)
{
    char* end = nullptr;
    errno = 0;
    const long number = std::strtol(iName.c_str(), &end, 10);
    oPosition = static_cast<int>(number);
    return end != iName.c_str() && errno == 0 && number >= 1 && number <= iSize;
}

Place InList(const Place& iPlace, const std::string& iName)
{
    const ORXISpecAttrAccess_var access = iPlace.object;
    const ORXISpecAttrKey_var& key = iPlace.key;
    if (key->GetType() != tk_list)
        return Nowhere("Get by name on a non-list");
    if (!IsObjectCode(key->GetListType()))
        return Nowhere(std::string(key->GetName().View()) + "Not a list of objects");
    const int size = access->GetListSize(key);
    Place byName = Nowhere("none");
    Place byType = Nowhere("none");
    for (int i = 1; i <= size; ++i)
    {
        const auto entry = ORXISpecObject_var::Adopt(access->GetSpecObject(key, i));
        if (entry ? DisplayName(entry) == iName : iName.empty())
            return PlaceOf(entry);
        if (!entry)
        {
            Place fatal;
            fatal.isFatal = true;
            return fatal;
        }
        if (entry->GetName().View() == iName && !byName.error.empty())
            byName = PlaceOf(entry);
        if (entry->GetType().View() == iName && !byType.error.empty())
            byType = PlaceOf(entry);
    }
    if (byName.error.empty())
        return byName;
    if (byType.error.empty())
        return byType;
    int position = 0;
    if (IsPosition(iName, size, position))
        return PlaceOf(ORXISpecObject_var::Adopt(access->GetSpecObject(key, position)));
    return Nowhere("No matching object to " + iName);
}
} // namespace

Place PlaceOf(const ORXISpecObject_var& iObject)
{
    if (!iObject)
        return Nowhere("Null initialization c");
    Place place;
    place.object = iObject;
    return place;
}

Place ByName(const Place& iPlace, const std::string& iName)
{
    if (iPlace.isFatal || !iPlace.error.empty())
        return iPlace;
    return iPlace.key ? InList(iPlace, iName) : OnObject(iPlace, iName);
}

Place ByPath(const Place& iPlace, const std::string& iPath)
{
    Place place = iPlace;
    std::string rest = iPath;
    while (!place.isFatal && place.error.empty())
    {
        const HeadAndTail parts = SplitPath(rest);
        if (parts.head.empty())
            break;
        place = ByName(place, parts.head);
        if (parts.tail.empty())
            break;
        rest = parts.tail;
    }
    return place;
}
} // namespace Naive
