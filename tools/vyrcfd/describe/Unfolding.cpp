#include "Unfolding.h"

#include <algorithm>
#include <unordered_set>

namespace Tool
{
namespace
{
using Fold = UnfoldingReader::Fold;

/// Far more than anybody writes; from there on the lines would be longer than anybody reads.
constexpr std::size_t DeepestLevel = 50;

/// A configuration that is being told, up to an item.
struct Level
{
    const SourceConfiguration* configuration;
    std::vector<SourceItem> items;
    std::size_t next = 0;
};

class Walk
{
public:
    Walk(const ConfigurationSource& iSource, bool iIsNested, UnfoldingReader& ioReader)
        : m_source(iSource), m_isNested(iIsNested), m_reader(ioReader)
    {
    }

    void Run(const SourceConfiguration& iConfiguration)
    {
        Open(iConfiguration);
        while (!m_levels.empty())
        {
            Level& level = m_levels.back();
            if (level.next < level.items.size())
                Tell(level.items[level.next++]);
            else
                Close();
        }
    }

private:
    std::size_t Depth() const { return m_levels.size() - 1; }

    void Open(const SourceConfiguration& iConfiguration)
    {
        m_levels.push_back({&iConfiguration, ItemsOf(iConfiguration)});
        m_told.insert(&iConfiguration);
        m_reader.Begin(iConfiguration, Depth());
    }

    void Close()
    {
        m_reader.End(*m_levels.back().configuration, Depth());
        m_levels.pop_back();
        // The configuration was opened by an item, which ends with it.
        if (!m_levels.empty())
            m_reader.Leave(Depth());
    }

    void Tell(const SourceItem& iItem)
    {
        const SourceConfiguration* const applied = Refers(iItem.role) ? m_source.Find(iItem.Text("config")) : nullptr;
        const Fold fold = FoldOf(applied);
        m_reader.Tell(iItem, Depth(), fold);
        if (fold == Fold::Open)
            Open(*applied);
        else
            m_reader.Leave(Depth());
    }

    Fold FoldOf(const SourceConfiguration* iApplied) const
    {
        if (iApplied == nullptr)
            return Fold::Nothing;
        if (!m_isNested)
            return Fold::NotAsked;
        if (std::any_of(m_levels.begin(), m_levels.end(),
                        [&](const Level& iLevel) { return iLevel.configuration == iApplied; }))
            return Fold::Circle;
        if (m_told.count(iApplied) != 0)
            return Fold::ToldBefore;
        return m_levels.size() == DeepestLevel ? Fold::TooDeep : Fold::Open;
    }

    const ConfigurationSource& m_source;
    bool m_isNested;
    UnfoldingReader& m_reader;
    std::vector<Level> m_levels;
    std::unordered_set<const SourceConfiguration*> m_told;
};
} // namespace

void Unfold(const SourceConfiguration& iConfiguration, const ConfigurationSource& iSource, bool iIsNested,
            UnfoldingReader& ioReader)
{
    Walk(iSource, iIsNested, ioReader).Run(iConfiguration);
}
} // namespace Tool
