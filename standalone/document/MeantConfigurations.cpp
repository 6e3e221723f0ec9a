#include "MeantConfigurations.h"

namespace VYRStandalone
{
MeantConfigurationTable& MeantConfigurationTable::Instance()
{
    static auto* const table = new MeantConfigurationTable;
    return *table;
}

MeantConfigurationTable::List& MeantConfigurationTable::ListOf(const std::string& iCatalog, const std::string& iFile)
{
    for (Entry& entry : m_entries)
        if (entry.catalog == iCatalog && entry.file == iFile)
            return entry.list;
    return m_entries.emplace_back(Entry{iCatalog, iFile, {}}).list;
}

MeantConfigurationTable::List MeantConfigurationTable::All() const
{
    List all;
    for (const Entry& entry : m_entries)
        all.insert(all.end(), entry.list.begin(), entry.list.end());
    return all;
}

std::vector<MeantConfiguration> MeantConfigurations()
{
    return MeantConfigurationTable::Instance().All();
}
} // namespace VYRStandalone
