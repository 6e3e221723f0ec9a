#include "Dictionary.h"

#include <algorithm>
#include <deque>

#include "FeatureType.h"
#include "ORXMetaClass.h"
#include "TypeRegistry.h"

namespace VYRStandalone
{
namespace
{
struct Pair
{
    ORXMetaClass* extensionClass;
    ORXMetaClass* interfaceMeta;
    ORXInterfaceCreator creator;
};

/// Read and written under the object model's guard only. Never destroyed.
struct Tables
{
    std::vector<Pair> pairs;
    std::deque<ORXOMModuleInfo> queue;
};

Tables& AllTables()
{
    static Tables* const tables = new Tables;
    return *tables;
}
} // namespace

constinit std::atomic<bool> Dictionary::s_isStale{true};

void Dictionary::Enter(ORXMetaClass& iClass, ORXMetaClass& iInterface, ORXInterfaceCreator iCreator)
{
    const qlx::internal::om_guard guard;
    std::vector<Pair>& pairs = AllTables().pairs;
    const bool stands = std::any_of(pairs.begin(), pairs.end(), [&](const Pair& iPair) {
        return iPair.extensionClass == &iClass && iPair.interfaceMeta == &iInterface;
    });
    if (stands)
        return;
    pairs.push_back({&iClass, &iInterface, iCreator});
    MarkStale();
}

void Dictionary::Queue(const ORXOMModuleInfo& iInfo)
{
    const qlx::internal::om_guard guard;
    AllTables().queue.push_back(iInfo);
    MarkStale();
}

void Dictionary::Unqueue(const ORXOMModuleInfo& iInfo)
{
    const qlx::internal::om_guard guard;
    std::deque<ORXOMModuleInfo>& queue = AllTables().queue;
    const auto found = std::find_if(queue.begin(), queue.end(), [&](const ORXOMModuleInfo& iQueued) {
        return iQueued.begin == iInfo.begin && iQueued.end == iInfo.end;
    });
    if (found != queue.end())
        queue.erase(found);
}

bool Dictionary::FindInterface(std::string_view iName, IID& oInterface)
{
    EnsureFresh();
    const qlx::internal::om_guard guard;
    for (const Pair& pair : AllTables().pairs)
        if (iName == pair.interfaceMeta->ClassName())
        {
            oInterface = pair.interfaceMeta->InterfaceId();
            return true;
        }
    return false;
}

std::string Dictionary::InterfaceName(const IID& iInterface)
{
    EnsureFresh();
    const qlx::internal::om_guard guard;
    for (const Pair& pair : AllTables().pairs)
        if (iInterface == pair.interfaceMeta->InterfaceId())
            return pair.interfaceMeta->ClassName();
    return {};
}

void Dictionary::Refresh()
{
    TypeRegistry& registry = TypeRegistry::Instance();
    const qlx::internal::om_guard guard;
    if (!s_isStale.load(std::memory_order_relaxed))
        return;
    std::deque<ORXOMModuleInfo>& queue = AllTables().queue;
    while (!queue.empty())
    {
        // Taken out first: an entry may itself make a request.
        const ORXOMModuleInfo info = queue.front();
        queue.pop_front();
        for (const ORXOMModuleEntry* entry = info.begin; entry != info.end; ++entry)
            (*entry)();
    }
    for (FeatureType* const type : registry.Types())
        type->SetExtensions(ShareOf(*type));
    registry.ColumnType().SetExtensions(ShareOf(registry.ColumnType()));
    // Last, so that a thread that finds it fresh reads complete shares.
    s_isStale.store(false, std::memory_order_release);
}

std::vector<ExtensionEntry> Dictionary::ShareOf(const FeatureType& iType)
{
    std::vector<ExtensionEntry> share;
    for (const FeatureType* const type : iType.Chain())
        for (const Pair& pair : AllTables().pairs)
        {
            const IID& interfaceId = pair.interfaceMeta->InterfaceId();
            const bool isTaken = std::any_of(share.begin(), share.end(), [&](const ExtensionEntry& iEntry) {
                return iEntry.interfaceId == interfaceId;
            });
            if (!isTaken && type->Name() == pair.extensionClass->LateType())
                share.push_back({interfaceId, pair.extensionClass, pair.creator});
        }
    return share;
}
} // namespace VYRStandalone
