#include "TypeRegistryUndo.h"

#include <memory>

namespace VYRStandalone
{
TypeRegistry::Undo::~Undo()
{
    if (!m_isKept)
        TakeBack();
}

void TypeRegistry::Undo::Make(const std::string& iName, FeatureType* iBase)
{
    if (iBase != nullptr)
        RememberUse(*iBase);
    std::vector<FeatureType*>& types = m_registry.m_types;
    auto type = std::make_unique<FeatureType>(iName, iBase);
    types.push_back(type.get());
    try
    {
        m_formers.emplace(type.get(), Former{true, false, {}});
        m_registry.m_byName.emplace(type->Name(), type.get());
    }
    catch (...)
    {
        m_formers.erase(type.get());
        types.pop_back();
        throw;
    }
    type.release();
}

void TypeRegistry::Undo::Remember(FeatureType& ioType)
{
    if (m_formers.find(&ioType) == m_formers.end())
        m_formers.emplace(&ioType, Former{false, ioType.IsFrozen(), ioType.AllContent()});
}

void TypeRegistry::Undo::RememberUse(FeatureType& ioType)
{
    if (!ioType.IsFrozen())
        Remember(ioType);
}

void TypeRegistry::Undo::EnterCatalog(const std::string& iName)
{
    m_registry.m_catalogs.insert(iName);
}

void TypeRegistry::Undo::Keep() noexcept
{
    m_isKept = true;
    // Nobody can have seen a former start-up: nothing was made of the type.
    for (const auto& [type, former] : m_formers)
        if (former.content.prototype != type->Prototype())
            FeatureType::DropPrototype(former.content.prototype);
}

void TypeRegistry::Undo::TakeBack() noexcept
{
    // All start-ups before any key, since they may have slots for the attributes of other types.
    for (const auto& [type, former] : m_formers)
        type->TakePrototypeBack(former.content);
    // New types from the last one on, and those that stood already behind them: each looks through its keys for its
    // own, and the first of them are those of its base.
    std::vector<FeatureType*>& types = m_registry.m_types;
    while (!types.empty() && m_formers.count(types.back()) != 0 && m_formers.at(types.back()).isNew)
    {
        FeatureType& type = *types.back();
        m_registry.m_byName.erase(type.Name());
        type.TakeBack(m_formers.at(&type).content, false);
        types.pop_back();
    }
    for (auto& [type, former] : m_formers)
        if (!former.isNew)
            type->TakeBack(former.content, former.wasFrozen);
    for (const auto& [type, former] : m_formers)
        if (former.isNew)
            delete type;
}
} // namespace VYRStandalone
