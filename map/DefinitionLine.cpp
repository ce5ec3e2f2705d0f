#include "map/DefinitionLine.h"

#include "map/PublishedName.h"
#include "text/Integers.h"

#include <algorithm>
#include <cstdint>

namespace
{

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

/// The address of the object's head as the line has it, negative ones included.
std::int32_t signedStart(const DefinitionObject& object)
{
    return static_cast<std::int32_t>(object.values.startAddress);
}

} // namespace

int DefinitionObject::firstAddress() const
{
    return std::max(signedStart(*this), 0);
}

int DefinitionObject::endAddress() const
{
    return static_cast<int>(
        std::min<std::int64_t>(std::int64_t{signedStart(*this)} + values.registerCount, registersPerSpace));
}

std::optional<DefinitionObject> describedObject(const DefinitionFields& fields)
{
    const bool write = fields.tagname.ends_with(writeSuffix);
    if (contains(fields.tagname, ".") && !write)
        return std::nullopt;
    const std::int32_t count = registerCountFor(fields.type, fields.count);
    const std::optional<RegisterSpace> space = spaceFromKeyword(fields.space);
    if (!space || count < 1)
        return std::nullopt;

    DefinitionObject object;
    object.space = *space;
    RegisterEntry& values = object.values;
    values.used = true;
    values.locked = fields.lock.starts_with("LOCKED");
    values.startAddress = static_cast<std::uint32_t>(parseInteger(fields.address));
    values.type = typeFromName(fields.type);
    values.registerCount = static_cast<std::uint32_t>(count);
    values.SwapBytes = contains(fields.order, "BYTES");
    values.SwapWords = contains(fields.order, "WORDS");
    values.SwapLongs = contains(fields.order, "LONGS");
    values.write = write;
    values.tagname = InternedText(fields.tagname.substr(0, fields.tagname.size() - (write ? writeSuffix.size() : 0)));
    values.description = InternedText(fields.description.substr(0, fields.description.find('{')));
    return object;
}

void overwriteSlot(RegisterEntry& slot, int address, const RegisterEntry& values)
{
    slot.used = values.used;
    slot.locked = values.locked;
    slot.startAddress = values.startAddress;
    slot.address = static_cast<std::uint32_t>(address);
    slot.type = values.type;
    slot.registerCount = values.registerCount;
    slot.write = values.write;
    slot.tagname = values.tagname;
    slot.description = values.description;
}

void parseDefinitionLine(RegisterMap& map, const DefinitionFields& fields)
{
    const std::optional<DefinitionObject> object = describedObject(fields);
    if (!object)
        return;
    const RegisterEntry& values = object->values;
    for (int address = object->firstAddress(); address < object->endAddress(); ++address)
    {
        RegisterEntry& slot = map.slots(object->space)[static_cast<std::size_t>(address)];
        overwriteSlot(slot, address, values);
        slot.SwapBytes |= values.SwapBytes;
        slot.SwapWords |= values.SwapWords;
        slot.SwapLongs |= values.SwapLongs;
    }
}
