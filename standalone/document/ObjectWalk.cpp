#include "ObjectWalk.h"

#include <algorithm>

#include "Container.h"
#include "FeatureObject.h"

namespace VYRStandalone
{
std::vector<FeatureObject*> ComponentsOf(const FeatureObject& iObject)
{
    std::vector<FeatureObject*> components;
    const auto add = [&](FeatureObject* iComponent) {
        if (iComponent != nullptr && std::find(components.begin(), components.end(), iComponent) == components.end())
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

std::vector<FeatureObject*> AllObjects(const Container& iContainer)
{
    std::vector<FeatureObject*> all;
    // What is still to come, the next at the end.
    std::vector<FeatureObject*> coming(iContainer.Objects().rbegin(), iContainer.Objects().rend());
    while (!coming.empty())
    {
        FeatureObject* object = coming.back();
        coming.pop_back();
        all.push_back(object);
        const std::vector<FeatureObject*> components = ComponentsOf(*object);
        coming.insert(coming.end(), components.rbegin(), components.rend());
    }
    return all;
}
} // namespace VYRStandalone
