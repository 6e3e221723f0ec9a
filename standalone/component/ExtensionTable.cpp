#include "ExtensionTable.h"

#include <algorithm>

#include "Census.h"
#include "KeptTie.h"
#include "ORXComponentLink.h"
#include "ORXInstanceListeners.h"
#include "ORXKweInstanceAdapter.h"
#include "ORXTie.h"

namespace VYRStandalone
{
ORXBaseUnknown* ExtensionTable::FindOrMake(ORXBaseUnknown& iRoot, ORXMetaClass& iClass,
                                           ORXInstanceConstructor iConstructor)
{
    for (const Instance& known : m_instances)
        if (known.extensionClass == &iClass)
            return known.instance;

    m_instances.push_back({&iClass, nullptr});
    ORXBaseUnknown* instance = nullptr;
    try
    {
        const ORXComponentLink::Pending pending(iRoot);
        instance = iConstructor();
    }
    catch (...)
    {
        Forget(iClass);
        throw;
    }
    if (instance == nullptr)
    {
        Forget(iClass);
        return nullptr;
    }
    // An instance that came from an allocator of its own has missed the link.
    if (!ORXComponentLink::IsLinked(*instance))
        ORXComponentLink::Link(*instance, iRoot);
    Census::Born(Census::Extension);
    // Looked up again: the constructor may have made other instances.
    for (Instance& known : m_instances)
        if (known.extensionClass == &iClass)
            known.instance = instance;
    return instance;
}

ORXBaseUnknown* ExtensionTable::Find(const ORXMetaClass& iClass) const noexcept
{
    for (const Instance& known : m_instances)
        if (known.extensionClass == &iClass)
            return known.instance;
    return nullptr;
}

bool ExtensionTable::IsUnderConstruction(const ORXMetaClass& iClass) const noexcept
{
    for (const Instance& known : m_instances)
        if (known.extensionClass == &iClass)
            return known.instance == nullptr;
    return false;
}

void ExtensionTable::AddLink(const IID& iInterface, ORXBaseUnknown& iFacet, ORXTieRecord* iTie)
{
    m_links.push_back({iInterface, &iFacet, iTie});
}

void ExtensionTable::KeepTie(const IID& iInterface) noexcept
{
    for (const Link& link : m_links)
        if (link.tie != nullptr && link.tie->kept == 0 && link.interfaceId == iInterface)
        {
            KeptTie::Keep(*link.tie);
            return;
        }
}

ORXTieRecord* ExtensionTable::FindKeptTie(const IID& iInterface) const noexcept
{
    for (const Link& link : m_links)
        if (link.tie != nullptr && link.tie->kept != 0 && link.interfaceId == iInterface)
            return link.tie;
    return nullptr;
}

/// One that somebody else holds as well stays his.
void ExtensionTable::DropKeptTies()
{
    // Each takes its own link out.
    for (std::size_t index = m_links.size(); index > 0; --index)
        if (ORXTieRecord* const tie = m_links[index - 1].tie; tie != nullptr && tie->kept != 0)
            KeptTie::Drop(*tie);
}

void ExtensionTable::RemoveLinksTo(const ORXBaseUnknown& iFacet) noexcept
{
    m_links.erase(
        std::remove_if(m_links.begin(), m_links.end(), [&](const Link& iLink) { return iLink.facet == &iFacet; }),
        m_links.end());
}

void ExtensionTable::Clear()
{
    m_isClearing = true;
    DropKeptTies();
    m_links.clear();
    while (!m_instances.empty())
    {
        // Out of the table first: a destructor may look at the object.
        ORXBaseUnknown* const instance = m_instances.back().instance;
        m_instances.pop_back();
        if (instance == nullptr)
            continue;
        Census::Died(Census::Extension);
        delete instance;
    }
    m_isClearing = false;
}

void ExtensionTable::DropListeners()
{
    // By position: what a listener lets go may change the table.
    for (std::size_t index = 0; index < m_instances.size(); ++index)
        if (ORXKweInstanceAdapter* const adapter = dynamic_cast<ORXKweInstanceAdapter*>(m_instances[index].instance))
            ORXInstanceListeners::LetGo(*adapter);
}

void ExtensionTable::Forget(const ORXMetaClass& iClass) noexcept
{
    m_instances.erase(std::remove_if(m_instances.begin(), m_instances.end(),
                                     [&](const Instance& iKnown) { return iKnown.extensionClass == &iClass; }),
                      m_instances.end());
}
} // namespace VYRStandalone
