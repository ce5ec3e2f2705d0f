#include "map/MapRow.h"

#include "map/ErrorMarks.h"
#include "text/Integers.h"

namespace
{

constexpr Rgb bright{220, 220, 220};
constexpr Rgb error{255, 0, 0};
constexpr Rgb warning{255, 255, 0};
constexpr Rgb writable{255, 150, 0};
constexpr Rgb readOnly{217, 255, 0};
constexpr Rgb continuation{120, 120, 200};
constexpr Rgb unused{80, 80, 80};

MapCell& cell(MapRow& row, MapColumn column)
{
    return row[static_cast<std::size_t>(column)];
}

MapCell marker(const RegisterEntry& slot)
{
    if (slot.locked)
        return {"L", error};
    if (hasError(slot))
        return {"!!", warning};
    return {};
}

MapCell access(const RegisterEntry& slot)
{
    if (!slot.write)
        return {"Read", readOnly};
    return {"Write", slot.writeValid ? writable : error};
}

void fillHead(MapRow& row, const RegisterEntry& slot)
{
    const auto order = byteOrderCharacters(slot);
    cell(row, MapColumn::Name) = {std::string(slot.tagname.view()), slot.tagIndex == -1 ? error : bright};
    cell(row, MapColumn::Type) = {std::string(typeName(slot.type)), slot.typeValid ? bright : error};
    cell(row, MapColumn::Size).text = std::to_string(static_cast<std::int32_t>(slot.registerCount));
    cell(row, MapColumn::Write) = access(slot);
    cell(row, MapColumn::Order).text.assign(order.begin(), order.end());
    cell(row, MapColumn::Description).text = slot.description.view();
}

void fillContinuation(MapRow& row, const RegisterEntry& slot)
{
    cell(row, MapColumn::Name) = {":", slot.tagIndex == -1 ? error : continuation};
    cell(row, MapColumn::Type) = {":", slot.typeValid ? continuation : error};
    cell(row, MapColumn::Size).text = ":";
    cell(row, MapColumn::Write).text = ":";
    cell(row, MapColumn::Order).text = ":";
    cell(row, MapColumn::Description).text = ":";
}

} // namespace

MapRow fillMapRow(const RegisterEntry& slot)
{
    MapRow row;
    cell(row, MapColumn::Address) = {addressText(slot.address), slot.used ? bright : unused};
    if (!slot.used)
    {
        cell(row, MapColumn::Name).colour = unused;
        cell(row, MapColumn::Type).colour = unused;
        return row;
    }
    cell(row, MapColumn::Marker) = marker(slot);
    if (isHead(slot))
        fillHead(row, slot);
    else
        fillContinuation(row, slot);
    return row;
}
