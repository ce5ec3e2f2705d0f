#include "text/InternedText.h"

#include "memory/FetchAhead.h"
#include "memory/LargePages.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <vector>

// Where texts lie, and how one is found:
//
//   blocks   | 4 T a n k | 6 P u m p _ 1 . . | 4 F l o w |      each text after its length, padded to whole headers
//              ^           ^                   ^
//   handles    |           |                   |                what slots and tags hold
//   slots    [ hash,entry | free | hash,entry | free | ... ]    open addressing, sought by the hash of the content
//
// Blocks never move or go, so a handle stays good while the table of slots grows under it.

namespace
{

/// Stands before the bytes of every interned text.
struct Header
{
    std::uint32_t length;
};

std::string_view contentOf(const void* entry)
{
    // Copied out, because the block is bytes and holds no object that a pointer could point to.
    Header header{};
    std::memcpy(&header, entry, sizeof header);
    return {static_cast<const char*>(entry) + sizeof header, header.length};
}

/// The part of a text whose length the header can hold.
std::string_view storable(std::string_view utf8)
{
    return utf8.substr(0, std::numeric_limits<std::uint32_t>::max());
}

/// Open-addressing table over texts that lie in large blocks: one allocation serves thousands of texts.
class Pool
{
public:
    /// Texts that `fetch` can look ahead over at a time.
    static constexpr std::size_t groupSize = 16;
    using Hashes = std::array<std::size_t, groupSize>;

    const void* intern(std::string_view utf8)
    {
        reserve(1);
        return intern(utf8, hashOf(utf8));
    }

    /// Hashes up to `groupSize` texts and fetches their places in the table, where `intern` then finds or enters them.
    void fetch(std::span<const std::string_view> texts, Hashes& hashes)
    {
        reserve(texts.size());
        for (std::size_t i = 0; i < texts.size(); ++i)
        {
            hashes[i] = hashOf(storable(texts[i]));
            fetchAhead(&slots[hashes[i] & (slots.size() - 1)]);
        }
    }

    /// @return null when the text has not been interned
    const void* known(std::string_view utf8) { return slots.empty() ? nullptr : find(slots, hashOf(utf8), utf8).entry; }

    /// @param hash  of that text; there has to be room for one more
    const void* intern(std::string_view utf8, std::size_t hash)
    {
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

    using Table = std::vector<Slot, LargePageAllocator<Slot>>;

    static std::size_t hashOf(std::string_view utf8) { return std::hash<std::string_view>{}(utf8); }

    void reserve(std::size_t further)
    {
        // Three quarters full at most: a search then ends after a few steps, and always at the text or a free slot.
        while ((count + further) * 4 > slots.size() * 3)
            grow();
    }

    static Slot& find(Table& table, std::size_t hash, std::string_view utf8)
    {
        const std::size_t mask = table.size() - 1;
        std::size_t index = hash & mask;
        // The hashes are compared first; the bytes of another text are hardly ever fetched.
        while (table[index].entry != nullptr && !(table[index].hash == hash && contentOf(table[index].entry) == utf8))
            index = (index + 1) & mask;
        return table[index];
    }

    void grow()
    {
        // Room for names and descriptions of a full database: growing up to there would take 4 ms of its loading.
        constexpr std::size_t firstSize = 1U << 18U;
        const std::size_t size = std::max(firstSize, slots.size() * 2);
        Table larger(size);
        // Each entry is on its place by its hash alone: all of them are different, so there is nothing to compare.
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
        // Rounded up to whole headers: the two lowest bits of a handle are always zero, and its hash leaves them out.
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
        // What is left of the block before is given up. A text longer than a block gets one of its own. A small plant
        // needs only the first one; the others have room for all texts of a large one, and large pages.
        constexpr std::size_t firstSize = 1U << 18U;
        constexpr std::size_t furtherSize = 1U << 23U;
        const std::size_t size = std::max(blocks.empty() ? firstSize : furtherSize, wanted);
        // Memory may run out here; nothing is changed until it is there, so that the texts before stay usable.
        blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
        next = blocks.back().get();
        room = size;
        preferLargePages(next, size);
    }

    Table slots;
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

InternedText::InternedText(std::string_view utf8) : entry(utf8.empty() ? nullptr : pool().intern(storable(utf8))) {}

std::optional<InternedText> InternedText::known(std::string_view utf8)
{
    InternedText text;
    if (utf8.empty())
        return text;
    text.entry = pool().known(storable(utf8));
    return text.empty() ? std::nullopt : std::optional(text);
}

void InternedText::internAll(std::span<const std::string_view> texts, std::span<InternedText> handles)
{
    Pool::Hashes hashes{};
    while (!texts.empty())
    {
        const std::size_t length = std::min(texts.size(), Pool::groupSize);
        pool().fetch(texts.first(length), hashes);
        for (std::size_t i = 0; i < length; ++i)
            handles[i].entry = texts[i].empty() ? nullptr : pool().intern(storable(texts[i]), hashes[i]);
        texts = texts.subspan(length);
        handles = handles.subspan(length);
    }
}

std::string_view InternedText::view() const
{
    return entry == nullptr ? std::string_view() : contentOf(entry);
}
