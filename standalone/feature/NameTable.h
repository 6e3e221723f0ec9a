#ifndef NameTable_H
#define NameTable_H

#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "FeatureKey.h"

namespace VYRStandalone
{
/**
 * Keys by name: one flat table, probed linearly, at most half full. The hash reads the name in words, since this
 * look-up is on the road of every read by name.
 */
class NameTable
{
public:
    FeatureKey* Find(std::string_view iName) const noexcept
    {
        if (m_places.empty())
            return nullptr;
        const std::uint32_t hash = Hash(iName);
        for (std::size_t place = hash & m_mask;; place = (place + 1) & m_mask)
        {
            const Place& candidate = m_places[place];
            if (candidate.key == nullptr)
                return nullptr;
            if (candidate.hash == hash && candidate.key->Name().View() == iName)
                return candidate.key;
        }
    }

    /// So that the next key can be inserted without taking memory.
    void MakeRoom()
    {
        if (2 * (m_used + 1) > m_places.size())
            Grow();
    }

    /// The name must not stand yet.
    void Insert(FeatureKey* iKey)
    {
        MakeRoom();
        Put({Hash(iKey->Name().View()), iKey});
        ++m_used;
    }

private:
    struct Place
    {
        std::uint32_t hash = 0;
        FeatureKey* key = nullptr;
    };

    static std::uint32_t Hash(std::string_view iName) noexcept
    {
        constexpr std::uint64_t factor = 0x9e3779b97f4a7c15ULL;
        std::uint64_t hash = iName.size() * factor;
        const char* text = iName.data();
        std::size_t left = iName.size();
        for (; left >= sizeof(std::uint64_t); left -= sizeof(std::uint64_t), text += sizeof(std::uint64_t))
        {
            std::uint64_t word;
            std::memcpy(&word, text, sizeof word);
            hash = (hash ^ word) * factor;
            hash ^= hash >> 32;
        }
        for (; left > 0; --left, ++text)
            hash = (hash ^ static_cast<unsigned char>(*text)) * factor;
        return static_cast<std::uint32_t>(hash >> 32);
    }

    void Grow()
    {
        std::vector<Place> old(m_places.empty() ? 16 : 2 * m_places.size());
        old.swap(m_places);
        m_mask = m_places.size() - 1;
        for (const Place& place : old)
            if (place.key != nullptr)
                Put(place);
    }

    void Put(const Place& iPlace)
    {
        std::size_t place = iPlace.hash & m_mask;
        while (m_places[place].key != nullptr)
            place = (place + 1) & m_mask;
        m_places[place] = iPlace;
    }

    std::vector<Place> m_places;
    std::size_t m_mask = 0;
    std::size_t m_used = 0;
};
} // namespace VYRStandalone

#endif
