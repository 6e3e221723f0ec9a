#include "ListNames.h"

#include <unordered_map>

#include "ORXIAlias.h"
#include "VYRIFldIdentifier.h"

namespace Tool
{
namespace
{
using FirstPositions = std::unordered_map<std::string, std::size_t>;

/// What a name means in the list; the position of the entry from 0, the size of the list for nothing.
class Meanings
{
public:
    explicit Meanings(const std::vector<ORXISpecObject_var>& iEntries) : m_size(iEntries.size())
    {
        for (std::size_t i = 0; i < iEntries.size(); ++i)
        {
            if (!iEntries[i])
                continue;
            m_aliases.try_emplace(AliasOf(iEntries[i]), i);
            m_names.try_emplace(TextOf(iEntries[i]->GetName()), i);
            m_types.try_emplace(TextOf(iEntries[i]->GetType()), i);
        }
    }

    std::size_t Of(const std::string& iName) const
    {
        for (const FirstPositions* positions : {&m_aliases, &m_names, &m_types})
            if (const auto found = positions->find(iName); found != positions->end())
                return found->second;
        return m_size;
    }

private:
    FirstPositions m_aliases;
    FirstPositions m_names;
    FirstPositions m_types;
    std::size_t m_size;
};
} // namespace

std::vector<std::string> ListNames(const std::vector<ORXISpecObject_var>& iEntries)
{
    const Meanings meanings(iEntries);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < iEntries.size(); ++i)
    {
        std::string chosen = std::to_string(i + 1);
        if (!!iEntries[i])
        {
            // In the reverse of what is preferred.
            for (const std::string& name :
                 {TextOf(iEntries[i]->GetType()), AliasOf(iEntries[i]), TextOf(iEntries[i]->GetName())})
                if (!name.empty() && name.find('/') == std::string::npos && meanings.Of(name) == i)
                    chosen = name;
        }
        names.push_back(chosen);
    }
    return names;
}

std::string AliasOf(const ORXISpecObject_var& iObject)
{
    const ORXIAlias_var spAlias = iObject;
    return !spAlias ? std::string() : TextOf(spAlias->GetAlias());
}

std::string IdentifierOf(const ORXISpecObject_var& iObject)
{
    const VYRIFldIdentifier_var spIdentifier = iObject;
    ORXUnicodeString identifier;
    if (!!spIdentifier)
        spIdentifier->GetIdentifier(identifier);
    return TextOf(identifier);
}

std::string TextOf(const ORXUnicodeString& iText)
{
    return std::string(iText.View());
}
} // namespace Tool
