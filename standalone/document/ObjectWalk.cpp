#include "ObjectWalk.h"

#include <unordered_set>

#include "Container.h"
#include "FeatureObject.h"

namespace VYRStandalone
{
std::vector<FeatureObject*> ComponentsOf(const FeatureObject& iObject)
{
    std::vector<FeatureObject*> components;
    std::unordered_set<const FeatureObject*> seen;
    const auto add = [&](FeatureObject* iComponent) {
        if (iComponent != nullptr && seen.insert(iComponent).second)
            components.push_back(iComponent);
    };
    for (const FeatureKey* key : iObject.Keys())
    {
        if (!key->Owns())
            continue;
        if (key->Slot() == SlotKind::Object)
            add(iObject.Object(*key));
        else
            for (FeatureObject* entry : std::get<std::vector<FeatureObject*>>(iObject.Entries(*key)))
                add(entry);
    }
    return components;
}

void AppendTree(FeatureObject& iObject, std::vector<FeatureObject*>& ioAll)
{
    // What is still to come, the next at the end.
    std::vector<FeatureObject*> coming{&iObject};
    while (!coming.empty())
    {
        FeatureObject* object = coming.back();
        coming.pop_back();
        ioAll.push_back(object);
        const std::vector<FeatureObject*> components = ComponentsOf(*object);
        coming.insert(coming.end(), components.rbegin(), components.rend());
    }
}

std::vector<FeatureObject*> AllObjects(const Container& iContainer)
{
    std::vector<FeatureObject*> all;
    for (FeatureObject* object : iContainer.Objects())
        AppendTree(*object, all);
    return all;
}
} // namespace VYRStandalone
