#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// A value of a JSON document, or the absence of one. A handle, valid as long as the document is.
///
/// Nothing that is asked of a value of another kind, or of an absent one, is an error: it has no elements and no
/// members, its text is empty and its number is 0.
class JsonValue
{
public:
    /// An absent value.
    JsonValue() = default;

    /// True when the document holds the value; null is a value, too.
    bool present() const { return node != nullptr; }

    /// Number of elements of an array.
    std::size_t size() const;

    /// An element of an array.
    /// @param index  0..size() - 1
    JsonValue operator[](std::size_t index) const;

    /// The member of an object with that name; the last one, when there are several.
    JsonValue member(std::string_view name) const;

    /// Looks several members of an object up in one pass.
    /// @param names   what to look for, each name once
    /// @param values  as many as there are names; receives the last member of each name, or absence
    void members(std::span<const std::string_view> names, std::span<JsonValue> values) const;

    /// The text of a string, or of a number as the file writes it.
    std::string_view text() const;

    /// The number, also when it is written as a string: its fraction cut off, of its whole part the low 32 bits.
    std::uint32_t bits() const;

private:
    friend class TolerantJson;

    explicit JsonValue(const void* value) : node(value) {}

    const void* node = nullptr;
};

/// A JSON document whose writers need not have been strict; `toStrictJson` lists what is tolerated.
///
/// Reading and releasing it take no call stack per level, whatever its depth.
class TolerantJson
{
public:
    /// Reads a document.
    ///
    /// Line breaks count for nothing: a string that is broken across lines is one string, and a comment that
    /// begins with "//" takes in all further lines.
    /// @param text  UTF-8
    /// @return nothing when it is no JSON even so, or when its root is neither an object nor an array
    static std::optional<TolerantJson> parse(std::string text);

    TolerantJson(TolerantJson&& other) noexcept;
    TolerantJson& operator=(TolerantJson&& other) noexcept;
    ~TolerantJson();

    /// The object or array that holds everything else.
    JsonValue root() const;

private:
    struct Content;

    explicit TolerantJson(std::unique_ptr<Content> parsed);

    std::unique_ptr<Content> content;
};
