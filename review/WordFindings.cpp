#include "review/WordFindings.h"

#include "map/ByteOrderWords.h"
#include "review/Wording.h"

#include <algorithm>
#include <array>
#include <string>

namespace
{

constexpr std::array<std::string_view, 4> orderWords{noSwapWord, swapBytesWord, swapWordsWord, swapLongsWord};

/// The first word of a byte order that is none of the four; empty when there is none. Words are joined by "+" or
/// blanks.
std::string_view unknownOrderWord(std::string_view order)
{
    constexpr std::string_view joints = "+ \t";
    while (true)
    {
        const std::size_t begin = order.find_first_not_of(joints);
        if (begin == std::string_view::npos)
            return {};
        order.remove_prefix(begin);
        const std::string_view word = order.substr(0, order.find_first_of(joints));
        if (std::ranges::find(orderWords, word) == orderWords.end())
            return word;
        order.remove_prefix(word.size());
    }
}

void appendOrderFinding(Findings& findings, const DefinitionFileLine& line, const PlacedLine& placed)
{
    const std::string_view word = unknownOrderWord(line.fields.order);
    if (!word.empty())
        appendFinding(findings, placed, Rule::UnknownOrder,
                      inQuotes(word) + " is none of NONE, BYTES, WORDS, LONGS: the byte order " +
                          inQuotes(line.fields.order) + " is read as " + byteOrderText(placed.object));
}

} // namespace

void appendWordFindings(Findings& findings, const DefinitionFileLine& line, const PlacedLine& placed)
{
    const DefinitionObject& object = placed.object;
    if (typeName(object.type) != line.fields.type)
        appendFinding(findings, placed, Rule::UnknownType,
                      "the type " + inQuotes(line.fields.type) + " is read as " + std::string(typeName(object.type)) +
                          " of " + counted(object.count, "register"));
    appendOrderFinding(findings, line, placed);
    if (line.fields.lock != lockWord(true) && line.fields.lock != lockWord(false))
        appendFinding(findings, placed, Rule::UnknownLock,
                      "the lock " + inQuotes(line.fields.lock) + " is read as " + std::string(lockWord(object.locked)));
}
