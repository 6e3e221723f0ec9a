#include "StartupValues.h"

#include "FeatureObject.h"

namespace VYRStandalone
{
namespace
{
Scalar Stored(const KnowledgeType& iType, const DeclaredScalar& iValue)
{
    Scalar stored;
    std::string why;
    iType.FromDocument(iValue, stored, why);
    return stored;
}

template <class Entry> void Fill(std::vector<Entry>& oEntries, const FeatureKey& iKey, const PrototypeValue& iValue)
{
    for (const DeclaredScalar& entry : iValue.entries)
    {
        const Scalar stored = Stored(*iKey.Knowledge(), entry);
        if constexpr (std::is_same_v<Entry, int>)
            oEntries.push_back(std::holds_alternative<bool>(stored) ? std::get<bool>(stored) : std::get<int>(stored));
        else if constexpr (!std::is_same_v<Entry, FeatureObject*>)
            oEntries.push_back(std::get<Entry>(stored));
    }
}

/// The entries as the list would hold them. @param iLike a list of the attribute
ListEntries EntriesOf(const ListEntries& iLike, const FeatureKey& iKey, const PrototypeValue& iValue)
{
    ListEntries entries = iLike;
    std::visit(
        [&](auto& ioList) {
            ioList.clear();
            Fill(ioList, iKey, iValue);
        },
        entries);
    return entries;
}
} // namespace

void StartupValues::Apply(FeatureObject& ioPrototype, const PrototypeValue& iValue)
{
    FeatureObject* object = &ioPrototype;
    for (std::size_t step = 0; step + 1 < iValue.path.size(); ++step)
        object = object->Object(*object->FindKey(iValue.path[step]));
    const FeatureKey& key = *object->FindKey(iValue.path.back());
    // What stands there lives for ever: a catalog that is declared again must not leave another copy behind.
    if (Holds(*object, key, iValue))
        return;
    if (iValue.isList)
        object->StoreEntries(key, EntriesOf(object->Entries(key), key, iValue));
    else
        object->StoreValue(key, Stored(*key.Knowledge(), iValue.entries.front()));
}

bool StartupValues::Holds(const FeatureObject& iObject, const FeatureKey& iKey, const PrototypeValue& iValue)
{
    if (iValue.isList)
        return iObject.Entries(iKey) == EntriesOf(iObject.Entries(iKey), iKey, iValue);
    return iObject.Value(iKey) == Stored(*iKey.Knowledge(), iValue.entries.front());
}
} // namespace VYRStandalone
