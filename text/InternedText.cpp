#include "text/InternedText.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace
{

/// Stands in front of the bytes of every interned text.
struct Header
{
    std::uint32_t length;
};

std::string_view contentOf(const void* entry)
{
    Header header{};
    std::memcpy(&header, entry, sizeof header);
    return {static_cast<const char*>(entry) + sizeof header, header.length};
}

/// Open-addressing table over texts that lie in large blocks: one allocation serves thousands of texts.
class Pool
{
public:
    const void* intern(std::string_view utf8)
    {
        if ((count + 1) * 2 > slots.size())
            grow();
        const std::size_t hash = std::hash<std::string_view>{}(utf8);
        Slot& slot = find(slots, hash, utf8);
        if (slot.entry == nullptr)
        {
            slot = {hash, store(utf8)};
            ++count;
        }
        return slot.entry;
    }

private:
    struct Slot
    {
        std::size_t hash = 0;
        const void* entry = nullptr;
    };

    static Slot& find(std::vector<Slot>& table, std::size_t hash, std::string_view utf8)
    {
        const std::size_t mask = table.size() - 1;
        std::size_t index = hash & mask;
        while (table[index].entry != nullptr && !(table[index].hash == hash && contentOf(table[index].entry) == utf8))
            index = (index + 1) & mask;
        return table[index];
    }

    void grow()
    {
        std::vector<Slot> larger(std::max<std::size_t>(1024, slots.size() * 2));
        const std::size_t mask = larger.size() - 1;
        for (const Slot& slot : slots)
        {
            if (slot.entry == nullptr)
                continue;
            std::size_t index = slot.hash & mask;
            while (larger[index].entry != nullptr)
                index = (index + 1) & mask;
            larger[index] = slot;
        }
        slots.swap(larger);
    }

    const void* store(std::string_view utf8)
    {
        const std::size_t wanted = (sizeof(Header) + utf8.size() + alignof(Header) - 1) & ~(alignof(Header) - 1);
        if (wanted > room)
            addBlock(wanted);
        std::byte* place = next;
        next += wanted;
        room -= wanted;
        const Header header{static_cast<std::uint32_t>(utf8.size())};
        std::memcpy(place, &header, sizeof header);
        std::memcpy(place + sizeof header, utf8.data(), utf8.size());
        return place;
    }

    void addBlock(std::size_t wanted)
    {
        constexpr std::size_t blockSize = 1U << 18U;
        room = std::max(blockSize, wanted);
        blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(room));
        next = blocks.back().get();
    }

    std::vector<Slot> slots;
    std::vector<std::unique_ptr<std::byte[]>> blocks;
    std::byte* next = nullptr;
    std::size_t room = 0;
    std::size_t count = 0;
};

Pool& pool()
{
    static Pool texts;
    return texts;
}

} // namespace

InternedText::InternedText(std::string_view utf8)
    : entry(utf8.empty() ? nullptr : pool().intern(utf8.substr(0, std::numeric_limits<std::uint32_t>::max())))
{
}

std::string_view InternedText::view() const
{
    return entry == nullptr ? std::string_view() : contentOf(entry);
}

std::size_t std::hash<InternedText>::operator()(InternedText text) const noexcept
{
    // Entries are at least four bytes apart; the multiplier is the 64-bit golden ratio.
    return (reinterpret_cast<std::uintptr_t>(text.entry) >> 2U) * 0x9E3779B97F4A7C15ULL >> 16U;
}
