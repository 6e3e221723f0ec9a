#ifndef MeantSource_H
#define MeantSource_H

#include <deque>
#include <string>
#include <unordered_set>
#include <vector>

#include "ConfigurationKeys.h"
#include "SourceItem.h"

namespace Tool
{
/**
 * The configurations as their writers have probably meant them, so that a mistake that is told does not hide those
 * behind it. Only what is beyond doubt is read in another way than it is written: a key that is a slip of another one,
 * a number in place of a text, one item in place of an array of items. Whoever finds more adds it. Places are those of
 * what is written.
 */
class MeantSource
{
public:
    /// @param iWritten is borrowed, and lives longer
    explicit MeantSource(const ConfigurationSource& iWritten);

    const ConfigurationSource& Source() const noexcept { return m_source; }

    /// A definition in the source, as it is written.
    struct Written
    {
        const SourceValue* definition;
        std::vector<const SourceValue*> items;
    };
    /// Of all definitions, in their order.
    const std::deque<Written>& Definitions() const noexcept { return m_written; }

    /// Whether a file holds configurations that are not read, since their key is misspelt beyond doubt or they are no
    /// array.
    bool HasLostConfigurations() const noexcept { return m_hasLostConfigurations; }

    /// From now on an item has another text under a key that it has.
    void SetText(const SourceItem& iItem, std::string_view iKey, std::string iText);
    /// Whether that has been done.
    bool HasOtherText(const SourceConfiguration& iConfiguration, std::size_t iItem, std::string_view iKey) const;

private:
    const SourceValue& Meant(const SourceValue& iWritten, const KindsByKey& iKeys);

    std::deque<SourceValue> m_values;
    std::unordered_set<const SourceValue*> m_texts;
    std::deque<Written> m_written;
    bool m_hasLostConfigurations = false;
    ConfigurationSource m_source;
};
} // namespace Tool

#endif
