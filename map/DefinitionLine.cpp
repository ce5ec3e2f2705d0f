#include "map/DefinitionLine.h"

#include "map/ByteOrderWords.h"
#include "map/PublishedName.h"
#include "text/Integers.h"

#include <algorithm>
#include <cstdint>
#include <optional>

// What a line says is worked out here without a look at the map, so a line is dropped before it has changed anything.
// The ninth field, what validation said when the line was written, is never read: the tags may be others by now.

namespace
{

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

void describe(DefinitionObject& object, const DefinitionFields& fields, RegisterSpace space, bool write,
              std::int32_t count)
{
    object.space = space;
    object.type = typeFromName(fields.type);
    object.locked = fields.lock.starts_with(lockWord(true));
    object.write = write;
    // The words count wherever they stand in the field, so their order and what joins them do not matter.
    object.SwapBytes = contains(fields.order, swapBytesWord);
    object.SwapWords = contains(fields.order, swapWordsWord);
    object.SwapLongs = contains(fields.order, swapLongsWord);
    // Zeros in front do not make it octal, and a number outside the space is kept: some registers may lie inside.
    object.start = parseInteger(fields.address);
    object.count = count;
    object.tagname = fields.tagname.substr(0, fields.tagname.size() - (write ? writeSuffix.size() : 0));
    // Looks wrong and is required: what begins with "{" is written with the description, but never read back.
    object.description = fields.description.substr(0, fields.description.find('{'));
}

} // namespace

int DefinitionObject::firstAddress() const
{
    return std::max(start, 0);
}

int DefinitionObject::endAddress() const
{
    // The count of a file may be 2147483647, so the sum needs more than 32 bits.
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{start} + count, registersPerSpace));
}

LineMeaning lineMeaning(const DefinitionFields& fields)
{
    // Filled in where the caller gets it: a copy made right after its small fields were written would wait for each of
    // them, 1 ms for 65,536 lines.
    LineMeaning meaning;
    const std::optional<RegisterSpace> space = spaceFromKeyword(fields.space);
    // The write permission travels as a suffix of the name, so any other name with a dot says something unknown. Only
    // the last ".1" is the suffix: "Pump.1.1" is the writable tag "Pump.1".
    const bool write = fields.tagname.ends_with(writeSuffix);
    const std::int32_t count = registerCountFor(fields.type, fields.count);
    if (!space)
        meaning = LineFault::UnknownSpace;
    else if (!write && contains(fields.tagname, "."))
        meaning = LineFault::DottedTagname;
    else if (count < 1)
        meaning = LineFault::NoRegisters;
    else
        describe(std::get<DefinitionObject>(meaning), fields, *space, write, count);
    return meaning;
}
