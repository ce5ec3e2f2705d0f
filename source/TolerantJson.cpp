#include "source/TolerantJson.h"

#include "source/JsonNumber.h"
#include "source/StrictJson.h"
#include "text/Lines.h"

#include <rapidjson/document.h>

#include <algorithm>
#include <limits>
#include <utility>

/// Values live in a pool, which is released block by block and not value by value.
struct TolerantJson::Content
{
    rapidjson::Document document;
};

namespace
{

using Node = rapidjson::Value;

const Node& nodeOf(const void* value)
{
    return *static_cast<const Node*>(value);
}

/// Numbers stay texts: whoever asks for a text gets it as written, whoever asks for a number gets exact bits.
constexpr unsigned parseFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;

/// True when the four characters behind "\u" begin with the given digit and one out of `seconds`.
bool isEscapeOf(std::string_view escape, std::string_view seconds)
{
    return escape.size() >= 6 && escape.starts_with("\\u") && (escape[2] == 'd' || escape[2] == 'D') &&
           seconds.find(escape[3]) != std::string_view::npos;
}

/// True when an escaped low surrogate does not follow an escaped high one. The parser notices only the opposite
/// and would make bytes of it that are no UTF-8.
bool holdsLoneLowSurrogate(std::string_view text)
{
    constexpr std::size_t unicodeEscape = 6;
    std::size_t place = text.find('\\');
    while (place != std::string_view::npos)
    {
        const std::string_view escape = text.substr(place);
        if (isEscapeOf(escape, "cdefCDEF"))
            return true;
        std::size_t length = 2;
        if (isEscapeOf(escape, "89abAB"))
            length = isEscapeOf(escape.substr(unicodeEscape), "cdefCDEF") ? 2 * unicodeEscape : unicodeEscape;
        place = text.find('\\', place + length);
    }
    return false;
}

bool parseStrictly(const std::string& text, rapidjson::Document& document)
{
    // The parser counts with 32 bits, and takes a zero byte for the end.
    if (text.size() > std::numeric_limits<rapidjson::SizeType>::max())
        return false;
    rapidjson::StringStream stream(text.c_str());
    document.ParseStream<parseFlags>(stream);
    return !document.HasParseError() && stream.Tell() == text.size() && (document.IsObject() || document.IsArray()) &&
           !holdsLoneLowSurrogate(text);
}

} // namespace

TolerantJson::TolerantJson(std::unique_ptr<Content> parsed) : content(std::move(parsed)) {}
TolerantJson::TolerantJson(TolerantJson&& other) noexcept = default;
TolerantJson& TolerantJson::operator=(TolerantJson&& other) noexcept = default;
TolerantJson::~TolerantJson() = default;

std::optional<TolerantJson> TolerantJson::parse(std::string text)
{
    // In strict JSON line breaks stand between tokens only, so it means the same before its lines are joined.
    auto parsed = std::make_unique<Content>();
    if (parseStrictly(text, parsed->document))
        return TolerantJson(std::move(parsed));

    parsed = std::make_unique<Content>();
    const auto strict = toStrictJson(joinLines(std::move(text)));
    if (!strict || !parseStrictly(*strict, parsed->document))
        return std::nullopt;
    return TolerantJson(std::move(parsed));
}

JsonValue TolerantJson::root() const
{
    return JsonValue(&content->document);
}

std::size_t JsonValue::size() const
{
    return present() && nodeOf(node).IsArray() ? nodeOf(node).Size() : 0;
}

JsonValue JsonValue::operator[](std::size_t index) const
{
    return JsonValue(&nodeOf(node)[static_cast<rapidjson::SizeType>(index)]);
}

JsonValue JsonValue::member(std::string_view name) const
{
    JsonValue value;
    members({&name, 1}, {&value, 1});
    return value;
}

void JsonValue::members(std::span<const std::string_view> names, std::span<JsonValue> values) const
{
    std::ranges::fill(values, JsonValue());
    if (!present() || !nodeOf(node).IsObject())
        return;
    // Objects of one kind mostly have their members in one order: the search begins behind the name found last.
    std::size_t next = 0;
    for (const auto& member : nodeOf(node).GetObject())
    {
        const std::string_view name(member.name.GetString(), member.name.GetStringLength());
        for (std::size_t tried = 0; tried < names.size(); ++tried)
        {
            const std::size_t index = next + tried < names.size() ? next + tried : next + tried - names.size();
            if (names[index] != name)
                continue;
            values[index] = JsonValue(&member.value);
            next = index + 1;
            break;
        }
    }
}

std::string_view JsonValue::text() const
{
    if (!present() || !nodeOf(node).IsString())
        return {};
    return {nodeOf(node).GetString(), nodeOf(node).GetStringLength()};
}

std::uint32_t JsonValue::bits() const
{
    return wholeNumberBits(text());
}
