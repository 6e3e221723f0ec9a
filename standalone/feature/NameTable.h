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
            if (candidate.hash == hash && IsSame(candidate.key->Name().View(), iName))
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

    /// By words: names have a few of them, and a call costs more than comparing.
    static bool IsSame(std::string_view iLeft, std::string_view iRight) noexcept
    {
        if (iLeft.size() != iRight.size())
            return false;
        const char* left = iLeft.data();
        const char* right = iRight.data();
        std::size_t size = iLeft.size();
        for (; size >= sizeof(std::uint64_t); size -= sizeof(std::uint64_t))
        {
            std::uint64_t words[2];
            std::memcpy(&words[0], left, sizeof words[0]);
            std::memcpy(&words[1], right, sizeof words[1]);
            if (words[0] != words[1])
                return false;
            left += sizeof words[0];
            right += sizeof words[1];
        }
        for (std::size_t at = 0; at < size; ++at)
            if (left[at] != right[at])
                return false;
        return true;
    }

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
        if (left > 0)
        {
            // What is left in one piece: of a long name by a word that reaches back into what was read.
            std::uint64_t word = 0;
            if (iName.size() >= sizeof word)
                std::memcpy(&word, text + left - sizeof word, sizeof word);
            else if (left >= sizeof(std::uint32_t))
            {
                std::uint32_t first;
                std::uint32_t last;
                std::memcpy(&first, text, sizeof first);
                std::memcpy(&last, text + left - sizeof last, sizeof last);
                word = first | static_cast<std::uint64_t>(last) << 32;
            }
            else
                word = static_cast<unsigned char>(text[0]) |
                       static_cast<std::uint64_t>(static_cast<unsigned char>(text[left / 2])) << 8 |
                       static_cast<std::uint64_t>(static_cast<unsigned char>(text[left - 1])) << 16;
            hash = (hash ^ word) * factor;
        }
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
