#include "map/WrittenBack.h"

#include "map/ByteOrderWords.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <variant>

namespace
{

/// Spreadsheets write an empty row as commas.
bool saysAnything(std::string_view line)
{
    return line.find_first_not_of(" \t,") != std::string_view::npos;
}

bool isNumber(std::string_view field)
{
    return !field.empty() && std::ranges::all_of(field, isDigit);
}

bool isOrderWrittenBack(std::string_view order, const DefinitionObject& object)
{
    const auto names = std::ranges::count(std::array{object.SwapBytes, object.SwapWords, object.SwapLongs}, true);
    if (names == 0)
        return order.empty() || order == noSwapWord;
    // Each name is in it, so an order of as many characters, with a "+" between the names, says nothing else.
    constexpr std::size_t nameLength = swapBytesWord.size();
    static_assert(swapWordsWord.size() == nameLength && swapLongsWord.size() == nameLength);
    for (std::size_t plus = nameLength; plus < order.size(); plus += nameLength + 1)
    {
        if (order[plus] != swapWordJoint)
            return false;
    }
    return std::ssize(order) == names * static_cast<std::ptrdiff_t>(nameLength) + names - 1;
}

bool isCountWrittenBack(std::string_view count, const DefinitionObject& object)
{
    if (count.empty())
        return true;
    // Compared as texts: a number beyond 32 bits is read as the largest one.
    const std::size_t zeros = count.find_first_not_of('0');
    return zeros != std::string_view::npos && count.substr(zeros) == std::to_string(object.count);
}

bool isLockWrittenBack(std::string_view lock, const DefinitionObject& object)
{
    return lock.empty() || lock == lockWord(object.locked);
}

/// The status is judged anew at every start, so nothing is lost with it. Any other word is a remark.
bool isStatusWrittenBack(std::string_view status)
{
    return status.empty() || status == "OK" || status == "ERROR";
}

/// The space and the tagname are written as they were read: a line is dropped otherwise.
bool areWrittenBack(const DefinitionFields& fields, const DefinitionObject& object)
{
    return isNumber(fields.address) && isOrderWrittenBack(fields.order, object) &&
           fields.type == typeName(object.type) && fields.description.size() == object.description.size() &&
           isCountWrittenBack(fields.count, object) && isLockWrittenBack(fields.lock, object) &&
           isStatusWrittenBack(fields.status);
}

} // namespace

bool isWrittenBack(const DefinitionFileLine& line)
{
    if (const auto* const object = std::get_if<DefinitionObject>(&line.meaning))
        return !line.isLengthGuessed && areWrittenBack(line.fields, *object);
    return !saysAnything(line.text);
}
