#include "LiteralModel.h"

#include <algorithm>

namespace
{

bool inSpace(std::int64_t address)
{
    return address >= 0 && address < registersPerSpace;
}

RegisterEntry freeSlotAt(int address)
{
    RegisterEntry slot;
    slot.address = static_cast<std::uint32_t>(address);
    slot.startAddress = static_cast<std::uint32_t>(address);
    return slot;
}

} // namespace

LiteralModel::LiteralModel() : spaces(std::make_unique<std::array<RegisterSlots, spaceCount>>())
{
    for (auto& pages : touched)
        pages.set();
    reset();
}

const RegisterEntry& LiteralModel::at(int space, int address) const
{
    return spaces->at(static_cast<std::size_t>(space))[address];
}

void LiteralModel::set(int space, int address, const RegisterEntry& slot)
{
    write(space, address) = slot;
}

void LiteralModel::reset()
{
    for (int space = 0; space < spaceCount; ++space)
    {
        for (int page = 0; page < pagesPerSpace; ++page)
        {
            for (int i = 0; isTouched(space, page) && i < pageLength; ++i)
                clear(space, page * pageLength + i);
        }
        touched[static_cast<std::size_t>(space)].reset();
    }
    clipboard.clear();
    currentSpace = 3;
}

bool LiteralModel::isTouched(int space, int page) const
{
    return touched[static_cast<std::size_t>(space)][static_cast<std::size_t>(page)];
}

const RegisterEntry& LiteralModel::current(int address) const
{
    return at(currentSpace, address);
}

RegisterEntry& LiteralModel::write(int space, int address)
{
    touched[static_cast<std::size_t>(space)].set(static_cast<std::size_t>(address / pageLength));
    return spaces->at(static_cast<std::size_t>(space))[address];
}

RegisterEntry& LiteralModel::writeCurrent(int address)
{
    return write(currentSpace, address);
}

void LiteralModel::clear(int space, int address)
{
    write(space, address) = freeSlotAt(address);
}

bool LiteralModel::eraseObject(int space, int address)
{
    const RegisterEntry judge = current(address);
    if (judge.locked)
        return false;
    if (!judge.used)
    {
        clear(space, address);
        return true;
    }
    if (judge.address != judge.startAddress)
    {
        clear(currentSpace, address);
        return true;
    }
    for (std::int64_t i = 0; i < judge.registerCount && inSpace(address + i); ++i)
        clear(space, static_cast<int>(address + i));
    return true;
}

std::vector<int> LiteralModel::collectSelection(const std::vector<int>& rows) const
{
    std::vector<int> addresses;
    for (const int row : rows)
    {
        if (!inSpace(row) || current(row).address != current(row).startAddress)
            continue;
        const std::int64_t count = current(row).used ? current(row).registerCount : 1;
        for (std::int64_t i = 0; i < count && inSpace(row + i); ++i)
            addresses.push_back(static_cast<int>(row + i));
    }
    return addresses;
}

void LiteralModel::copy(const std::vector<int>& addresses)
{
    if (addresses.empty())
        return;
    clipboard.clear();
    for (const int address : addresses)
    {
        if (inSpace(address))
            clipboard.push_back(current(address));
    }
}

void LiteralModel::erase(const std::vector<int>& addresses)
{
    for (const int address : addresses)
    {
        if (inSpace(address))
            eraseObject(currentSpace, address);
    }
}

void LiteralModel::cut(const std::vector<int>& addresses)
{
    copy(addresses);
    erase(addresses);
}

PasteResult LiteralModel::paste(int row)
{
    if (clipboard.empty() || !inSpace(row))
        return PasteResult::NothingToDo;
    std::int64_t target = row;
    if (current(row).address != current(row).startAddress)
        target += std::int64_t{current(row).startAddress} - std::int64_t{current(row).address};
    if (!inSpace(target))
        return PasteResult::NothingToDo;
    std::size_t count = 0;
    for (std::int64_t address = target; inSpace(address); ++address)
    {
        const RegisterEntry& slot = current(static_cast<int>(address));
        if (slot.locked)
            break;
        if (!slot.used)
            ++count;
        if (count == clipboard.size())
            break;
    }
    if (count < clipboard.size())
        return PasteResult::NoRoom;
    insertClipboard(static_cast<int>(target));
    return PasteResult::Pasted;
}

bool LiteralModel::append(int row)
{
    if (clipboard.empty() || !inSpace(row))
        return false;
    int address = row;
    while (address < registersPerSpace && current(address).used)
        ++address;
    if (address > registersPerSpace - static_cast<int>(clipboard.size()))
        return false;
    insertClipboard(address);
    return true;
}

void LiteralModel::insertClipboard(int target)
{
    insert(clipboard, target);
}

void LiteralModel::insert(const std::vector<RegisterEntry>& elements, int target)
{
    std::vector<int> ignored;
    for (std::size_t i = 0; i < elements.size(); ++i)
    {
        const int t = target + static_cast<int>(i);
        if (!inSpace(t))
            return;
        if (current(t).used)
        {
            if (current(t).locked || !inSpace(t + 1) || current(t + 1).locked)
                return;
            if (current(t + 1).used && !moveSlot(t + 1, MoveDirection::Down, true, ignored))
                return;
            RegisterEntry pushed = current(t);
            pushed.startAddress += 1;
            pushed.address += 1;
            writeCurrent(t + 1) = pushed;
            writeCurrent(t).used = false;
        }
        RegisterEntry element = elements[i];
        element.startAddress = element.startAddress - element.address + static_cast<std::uint32_t>(t);
        element.address = static_cast<std::uint32_t>(t);
        writeCurrent(t) = element;
    }
}

bool LiteralModel::moveSlot(int address, MoveDirection direction, bool shoving, std::vector<int>& changed)
{
    if (!inSpace(address))
        return false;
    const int step = direction == MoveDirection::Down ? 1 : -1;
    const int next = address + step;
    if (!inSpace(next) || current(address).locked || current(next).locked)
        return false;
    if (current(next).used && (!shoving || !moveSlot(next, direction, shoving, changed)))
        return false;
    RegisterEntry moved = current(address);
    moved.startAddress += static_cast<std::uint32_t>(step);
    moved.address += static_cast<std::uint32_t>(step);
    writeCurrent(next) = moved;
    writeCurrent(address).used = false;
    changed.push_back(next);
    return true;
}

MoveResult LiteralModel::moveSlots(std::vector<int> addresses, MoveDirection direction, bool shoving)
{
    const int step = direction == MoveDirection::Down ? 1 : -1;
    if (direction == MoveDirection::Down)
        std::reverse(addresses.begin(), addresses.end());
    MoveResult result;
    for (const int address : addresses)
    {
        const bool moved = moveSlot(address, direction, shoving, result.changed);
        result.positions.push_back(moved ? address + step : address);
    }
    return result;
}

CompressResult LiteralModel::compress(const std::vector<int>& addresses)
{
    if (addresses.empty() || !inSpace(addresses.front()) || !inSpace(addresses.back()))
        return CompressResult::NothingSelected;
    const int first = addresses.front();
    const int last = addresses.back();
    if (first > last)
        return CompressResult::Unchanged;
    for (int address = first; address <= last; ++address)
    {
        if (current(address).locked)
            return CompressResult::Locked;
    }
    int d = first;
    while (d <= last && current(d).used)
        ++d;
    if (d > last)
        return CompressResult::Unchanged;
    for (int src = d; src <= last; ++src)
    {
        if (!current(src).used || current(src).address != current(src).startAddress)
            continue;
        const std::int64_t n = current(src).registerCount;
        for (std::int64_t k = 0; k < n && inSpace(src + k); ++k)
        {
            RegisterEntry moved = current(static_cast<int>(src + k));
            moved.startAddress = static_cast<std::uint32_t>(d);
            moved.address = static_cast<std::uint32_t>(d + k);
            writeCurrent(static_cast<int>(d + k)) = moved;
            clear(currentSpace, static_cast<int>(src + k));
        }
        if (n > 0)
            d = static_cast<int>(std::min<std::int64_t>(d + std::int64_t{current(d).registerCount}, registersPerSpace));
    }
    return CompressResult::Compressed;
}

void LiteralModel::toggleLocks(const std::vector<int>& addresses)
{
    for (const int address : addresses)
    {
        if (inSpace(address))
            writeCurrent(address).locked = !current(address).locked;
    }
}

void LiteralModel::purge()
{
    for (int space = 0; space < spaceCount; ++space)
    {
        for (int address = 0; address < registersPerSpace; ++address)
        {
            const RegisterEntry& slot = at(space, address);
            if (slot.used && (!slot.typeValid || !slot.writeValid || slot.tagIndex == -1))
                eraseObject(space, address);
        }
    }
}

void LiteralModel::replace(const std::vector<int>& addresses, const std::string& find, const std::string& replacement)
{
    if (find.empty())
        return;
    for (const int address : addresses)
    {
        if (!inSpace(address) || current(address).locked)
            continue;
        std::string name(current(address).tagname.view());
        for (std::size_t i = 0; i + find.size() <= name.size();)
        {
            if (name.compare(i, find.size(), find) == 0)
            {
                name.replace(i, find.size(), replacement);
                i += replacement.size();
            }
            else
            {
                ++i;
            }
        }
        writeCurrent(address).tagname = InternedText(name);
    }
}

std::optional<int> LiteralModel::editedHead(int row) const
{
    if (!inSpace(row))
        return std::nullopt;
    int address = row;
    while (address > 0 && current(address).used && current(address).startAddress != current(address).address)
        --address;
    if (current(address).locked)
        return std::nullopt;
    return address;
}

RegisterEntry LiteralModel::editedEntry(int head) const
{
    return current(head).used ? current(head) : freeSlotAt(head);
}

void LiteralModel::edit(int head, const RegisterEntry& entry)
{
    const std::int64_t oldCount = editedEntry(head).registerCount;
    for (std::int64_t i = 0; i < oldCount && inSpace(head + i); ++i)
        clear(currentSpace, static_cast<int>(head + i));
    std::vector<RegisterEntry> copies;
    for (std::uint32_t i = 0; i < entry.registerCount; ++i)
    {
        copies.push_back(entry);
        copies.back().startAddress = static_cast<std::uint32_t>(head);
        copies.back().address = static_cast<std::uint32_t>(head) + i;
    }
    insert(copies, head);
}
