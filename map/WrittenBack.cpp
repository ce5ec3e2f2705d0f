#include "map/WrittenBack.h"

#include "text/Integers.h"

#include <algorithm>
#include <array>
#include <cstddef>
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
    return !field.empty() && std::all_of(field.begin(), field.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isOrderWrittenBack(std::string_view order, const DefinitionObject& object)
{
    const auto names = std::ranges::count(std::array{object.SwapBytes, object.SwapWords, object.SwapLongs}, true);
    if (names == 0)
        return order.empty() || order == "NONE";
    // Each name is in it, so an order that is no longer than these with a "+" between them says nothing else.
    constexpr std::ptrdiff_t nameLength = 5;
    return std::ssize(order) == names * nameLength + names - 1;
}

bool isCountWrittenBack(std::string_view count, const DefinitionObject& object)
{
    return count.empty() || (isNumber(count) && parseInteger(count) == object.count);
}

bool isLockWrittenBack(std::string_view lock, const DefinitionObject& object)
{
    return lock.empty() || lock == (object.locked ? "LOCKED" : "UNLOCKED");
}

/// The status is judged anew; only words that are none are lost.
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
        return areWrittenBack(line.fields, *object);
    return !saysAnything(line.text);
}
