/**
 * @file
 * Paths and names. The input is a path, which is also taken as one name.
 *
 * The cursor ends where the naive walk does, from every object of a model, with the same error where it ends nowhere;
 * paths are cut and cleaned as the naive operations do it.
 */

#include "FuzzTarget.h"
#include "FuzzTypes.h"
#include "NaiveText.h"
#include "NaiveWalk.h"
#include "VYRCfdObjectAccess.h"
#include "VYRCfdUtilityMethods.h"
#include "VYRStandaloneErrors.h"

namespace
{
using VYRStandalone::Model;

/// Where walks begin: the objects of a model which lives as long as the process.
struct Starts
{
    Starts()
    {
        FuzzTypes::Declare();
        model = Model::Parse(FuzzTypes::SampleModel(), "sample");
        objects = FuzzTypes::AllObjects(model);
        // What keeps the flags has nothing to walk to.
        std::erase_if(objects, [](const ORXISpecObject_var& iObject) {
            return iObject->IsSubTypeOf("VYRCfdDefaultManagement") != ORXFalse;
        });
    }

    Model model;
    std::vector<ORXISpecObject_var> objects;
};

std::string Text(const ORXUnicodeString& iText)
{
    return std::string(iText.View());
}

template <class Walk> void DemandPlace(const Naive::Place& iExpected, const Walk& iWalk)
{
    try
    {
        const VYRCfdObjectAccess access = iWalk();
        Demand(!iExpected.isFatal, "a list with an empty entry is fatal to a search by name");
        DemandSame(access.GetError().View(), iExpected.error, "a walk ends in the same error");
        Demand(ORXISpecObject_var(access.Self()) == iExpected.object, "a walk ends at the same object");
        const std::string key = iExpected.key ? Text(iExpected.key->GetName()) : std::string();
        if (iExpected.key)
            DemandSame(access.GetName().View(), key, "a walk ends at the same attribute");
        else if (iExpected.error.empty())
            DemandSame(access.GetType().View(), iExpected.object->GetType().View(), "a walk ends at an object");
    }
    catch (const VYRStandalone::NullPointerError&)
    {
        Demand(iExpected.isFatal, "only an empty entry of a list is fatal");
    }
}

void WalkFrom(const ORXISpecObject_var& iObject, const std::string& iPath)
{
    const ORXUnicodeString path(iPath.data(), iPath.size());
    const VYRCfdObjectAccess start{ORXBaseUnknown_var(iObject)};
    const Naive::Place place = Naive::PlaceOf(iObject);
    DemandPlace(Naive::ByPath(place, iPath), [&] { return start.GetByPath(path); });
    DemandPlace(Naive::ByName(place, iPath), [&] { return start.Get(path); });
    if (iObject->IsSubTypeOf("FuzzSolver") == ORXFalse)
        return;
    for (const char* list : {"parts", "others", "strings", "real"})
        DemandPlace(Naive::ByName(Naive::ByName(place, list), iPath), [&] { return start.Get(list).Get(path); });
}

void CutAndClean(const std::string& iPath)
{
    const ORXUnicodeString path(iPath.data(), iPath.size());
    const Naive::HeadAndTail expected = Naive::SplitPath(iPath);

    ORXUnicodeString head("before");
    ORXUnicodeString tail("before");
    Demand(VYRCfdObjectAccess::SplitPath(path, head, tail) == S_OK, "every path can be cut");
    DemandSame(head.View(), expected.head, "the head of a path");
    DemandSame(tail.View(), expected.tail.empty() ? "before" : expected.tail, "the tail of a path");

    head = tail = "before";
    Demand(VYRCfdUtilityMethods::SplitAttr(path, head, tail) == S_OK, "every path can be cut");
    DemandSame(head.View(), expected.head, "the head of an attribute's path");
    DemandSame(tail.View(), expected.tail.empty() ? "before" : expected.tail, "the tail of an attribute's path");

    std::string normalized;
    const bool isInside = Naive::Normalize(iPath, normalized);
    ORXUnicodeString cleaned("before");
    Demand((VYRCfdUtilityMethods::NormalizePath(path, cleaned) == S_OK) == isInside, "a path that leads above fails");
    DemandSame(cleaned.View(), isInside ? normalized : "", "the clean path");
}
} // namespace

void RunInput(std::string_view iInput)
{
    static const auto* const starts = new Starts;
    const std::string path(iInput);
    for (const ORXISpecObject_var& object : starts->objects)
        WalkFrom(object, path);
    CutAndClean(path);
}
