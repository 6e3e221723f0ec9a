#include "ManipulatorTable.h"

#include <algorithm>
#include <utility>

#include "AttributeParm.h"
#include "Manipulator.h"

namespace VYRStandalone
{
namespace
{
void Forget(const ORXICkeManipulator_var& iManipulator) noexcept
{
    static_cast<Manipulator*>(iManipulator.Pointer())->Forget();
}
} // namespace

ORXICkeManipulator_var ManipulatorTable::Make(const AttributeParm& iParm)
{
    if (m_entries == nullptr)
        m_entries = std::make_unique<std::vector<Entry>>();
    const ORXICkeManipulator_var made = ORXICkeManipulator_var::Adopt(new Manipulator(&iParm));
    if (Entry* const entry = EntryOf(iParm.Key()))
    {
        Forget(entry->manipulator);
        entry->manipulator = made;
    }
    else
        m_entries->push_back({&iParm.Key(), made});
    return made;
}

ORXICkeManipulator_var ManipulatorTable::Find(const FeatureKey& iKey) const
{
    const Entry* const entry = EntryOf(iKey);
    return entry != nullptr ? entry->manipulator : ORXICkeManipulator_var();
}

void ManipulatorTable::Drop(const FeatureKey& iKey) noexcept
{
    Entry* const entry = EntryOf(iKey);
    if (entry == nullptr)
        return;
    Forget(entry->manipulator);
    *entry = std::move(m_entries->back());
    m_entries->pop_back();
}

ManipulatorTable::Entry* ManipulatorTable::EntryOf(const FeatureKey& iKey) const noexcept
{
    if (m_entries == nullptr)
        return nullptr;
    const auto found =
        std::find_if(m_entries->begin(), m_entries->end(), [&](const Entry& iEntry) { return iEntry.key == &iKey; });
    return found != m_entries->end() ? &*found : nullptr;
}
} // namespace VYRStandalone
