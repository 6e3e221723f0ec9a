#ifndef MeantConfigurations_H
#define MeantConfigurations_H

#include <deque>
#include <string>
#include <vector>

#include "VYRStandaloneCatalog.h"

namespace VYRStandalone
{
/// What the catalogs of the process say of the configurations that their types are meant for. Made on first use and
/// never destroyed.
class MeantConfigurationTable
{
public:
    using List = std::vector<MeantConfiguration>;

    static MeantConfigurationTable& Instance();

    /// The list of a catalog from a file, to be written; empty at first, and not moved by later calls.
    List& ListOf(const std::string& iCatalog, const std::string& iFile);

    List All() const;

private:
    struct Entry
    {
        std::string catalog;
        std::string file;
        List list;
    };

    MeantConfigurationTable() = default;

    std::deque<Entry> m_entries;
};
} // namespace VYRStandalone

#endif
