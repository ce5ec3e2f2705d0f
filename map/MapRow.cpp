#include "map/MapRow.h"

#include "map/ErrorMarks.h"
#include "text/Integers.h"

// The three kinds of rows, here of an object that validation found a mark for:
//
//   *    Address  Name        Type   Size  Write  Order  Description
//   !!   00100    Tank1Level  FLOAT  2     Read   BW-    Level of tank 1     head
//   !!   00101    :           :      :     :      :      :                   continuation
//        00102                                                               free slot, in the view of all addresses
//
// A continuation slot carries all values of its object, but shows them once only, in the row of its head. Its colours
// are those of its own marks.

namespace
{

MapCell& cell(MapRow& row, MapColumn column)
{
    return row[static_cast<std::size_t>(column)];
}

MapCell marker(const RegisterEntry& slot)
{
    // A lock hides the error mark: the user has said that this register is to stay as it is.
    if (slot.locked)
        return {"L", MapTone::Lock};
    if (hasError(slot))
        return {"!!", MapTone::Warning};
    return {};
}

MapCell access(const RegisterEntry& slot)
{
    // Any tag can be read, so only the permission to write can be wrong.
    if (!slot.write)
        return {"Read", MapTone::ReadOnly};
    return {"Write", slot.writeValid ? MapTone::Writable : MapTone::Error};
}

MapTone nameTone(const RegisterEntry& slot, MapTone sound)
{
    return slot.tagIndex == -1 ? MapTone::Error : sound;
}

MapTone typeTone(const RegisterEntry& slot, MapTone sound)
{
    return slot.typeValid ? sound : MapTone::Error;
}

void fillHead(MapRow& row, const RegisterEntry& slot)
{
    const auto order = byteOrderCharacters(slot);
    cell(row, MapColumn::Name) = {std::string(slot.tagname.view()), nameTone(slot, MapTone::Sound)};
    cell(row, MapColumn::Type) = {std::string(typeName(slot.type)), typeTone(slot, MapTone::Sound)};
    cell(row, MapColumn::Size).text = std::to_string(static_cast<std::int32_t>(slot.registerCount));
    cell(row, MapColumn::Write) = access(slot);
    cell(row, MapColumn::Order).text.assign(order.begin(), order.end());
    cell(row, MapColumn::Description).text = slot.description.view();
}

void fillContinuation(MapRow& row, const RegisterEntry& slot)
{
    cell(row, MapColumn::Name) = {":", nameTone(slot, MapTone::Continuation)};
    cell(row, MapColumn::Type) = {":", typeTone(slot, MapTone::Continuation)};
    cell(row, MapColumn::Size).text = ":";
    cell(row, MapColumn::Write).text = ":";
    cell(row, MapColumn::Order).text = ":";
    cell(row, MapColumn::Description).text = ":";
}

} // namespace

MapRow fillMapRow(const RegisterEntry& slot)
{
    MapRow row;
    cell(row, MapColumn::Address) = {addressText(slot.address), slot.used ? MapTone::Sound : MapTone::Free};
    // A slot that a move has vacated keeps its texts; being free, it shows none of them, and no lock either.
    if (!slot.used)
    {
        cell(row, MapColumn::Name).tone = MapTone::Free;
        cell(row, MapColumn::Type).tone = MapTone::Free;
        return row;
    }
    cell(row, MapColumn::Marker) = marker(slot);
    if (isHead(slot))
        fillHead(row, slot);
    else
        fillContinuation(row, slot);
    return row;
}

std::string mapCellNote(const RegisterEntry& slot, MapColumn column)
{
    if (column == MapColumn::Address)
        return slot.locked ? "locked" : "";
    if (!slot.used || isHead(slot) || column == MapColumn::Marker)
        return {};
    // The slot carries what its head carries, so its row can be filled as if it were the head.
    MapRow row;
    fillHead(row, slot);
    return cell(row, column).text;
}
