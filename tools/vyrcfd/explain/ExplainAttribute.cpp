#include <algorithm>

#include "Explanation.h"
#include "Failure.h"
#include "ModelSurvey.h"
#include "ObjectPath.h"
#include "QuietDefaults.h"
#include "Wording.h"

namespace Tool
{
namespace
{
/// Nothing for one that default management only keeps from having looked a record up.
std::optional<Value> CustomDefaultOf(const VYRStandalone::Model& iModel, const ObjectSnapshot& iObject,
                                     const AttributeSnapshot& iAttribute)
{
    const AttributeDefault byDefault = QuietDefaults(iModel).Of(iObject, iAttribute);
    return byDefault.origin == DefaultOrigin::CustomDefault ? std::optional<Value>(byDefault.value) : std::nullopt;
}
} // namespace

Explanation ExplainAttribute(const VYRStandalone::Model& iModel, const std::string& iPlace, const std::string& iPath,
                             ModelOrigin iOrigin)
{
    const Target target = FollowToAttribute(iModel, iPlace, iPath);
    ObjectSnapshot object = TakeSnapshot(iModel, target.object, {}).front();
    if (object.path.empty())
        object.path = iPath.substr(0, iPath.rfind('/'));
    const auto attribute =
        std::find_if(object.attributes.begin(), object.attributes.end(),
                     [&](const AttributeSnapshot& iOne) { return iOne.info.name == target.attribute; });
    // Default management of the object is not among what it manages.
    if (attribute == object.attributes.end())
        throw Failure((iPlace.empty() ? "" : OneLine(iPlace) + ": ") + Quoted(iPath) +
                      " holds the flags and the records of attributes, and has no default of its own");
    Explanation explanation{iPath, object.path, *attribute, std::nullopt, std::nullopt, iOrigin};
    if (IsManaged(target.object))
    {
        std::optional<Value> custom;
        if (iOrigin == ModelOrigin::Session)
            custom = CustomDefaultOf(iModel, object, *attribute);
        explanation.ladder = LadderOf(iModel, iPath, custom);
        explanation.unsetting = TryUnset(iModel, iPath, custom);
    }
    return explanation;
}
} // namespace Tool
