#include "map/Clipboard.h"
#include "map/Compress.h"
#include "map/ErrorPurge.h"
#include "map/Locks.h"
#include "map/RegisterEdit.h"
#include "map/RegisterMoves.h"
#include "map/Selection.h"
#include "map/TagnameReplace.h"
#include "tests/core/Chance.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace
{

enum class Command
{
    Copy,
    Cut,
    Delete,
    Paste,
    Append,
    Move,
    Shove,
    Compress,
    Toggle,
    Purge,
    Replace,
    Edit
};

/// The last slots of a space, or the first ones, with whole objects in them, edited as a user edits the view of all
/// slots: rows of objects, of free slots and of slots that a move has vacated.
class TidyMap
{
public:
    void begin(std::uint32_t seed)
    {
        chance = Chance(seed);
        clearSlots(map.currentSlots(), first, static_cast<std::uint32_t>(last - first + 1));
        map.clipboard.clear();
        first = chance.oneOf({0, 40'000, registersPerSpace - length});
        last = first + length - 1;
        fill();
        remember();
    }

    Command step()
    {
        remember();
        appendedAt = -1;
        const auto command = static_cast<Command>(chance.pick(0, 11));
        perform(command);
        return command;
    }

    int tornObject() const { return tornObjectIn(map.currentSlots(), first, last); }

    /// The first slot that was locked before the last step and is not the same any more; -1 when there is none. The
    /// free slot that an append begins with is left out: it is taken locked or not.
    int changedLockedSlot() const
    {
        for (int address = first; address <= last; ++address)
        {
            const RegisterEntry& old = before[static_cast<std::size_t>(address - first)];
            if (old.locked && address != appendedAt && map.currentSlots()[address] != old)
                return address;
        }
        return -1;
    }

    /// Slots that a move has vacated and nothing has overwritten since.
    int vacatedSlots() const
    {
        const std::vector<RegisterEntry> slots = window();
        return static_cast<int>(std::count_if(
            slots.begin(), slots.end(), [](const RegisterEntry& slot) { return !slot.used && !slot.tagname.empty(); }));
    }

    /// True when the same registers are there as before the last step, wherever they stand now.
    bool holdsTheSameRegisters() const { return registersIn(window()) == registersIn(before); }

private:
    /// Slots under observation: long enough for what a sequence of commands adds, and with a margin on either side that
    /// nothing crosses, since a command moves what is there by no more than one place up or the clipboard's length
    /// down.
    static constexpr int length = 1600;
    static constexpr int margin = 200;

    std::vector<RegisterEntry> window() const
    {
        const auto begin = map.currentSlots().begin() + first;
        return {begin, begin + length};
    }

    void remember() { before = window(); }

    void fill()
    {
        int address = first == 0 ? 0 : first + margin;
        if (last == lastAddress)
            address = lastAddress - chance.pick(150, 300);
        const int end = address + 140;
        while (address < end)
        {
            RegisterEntry entry = registerOf(chance.oneOf({"AA", "B", "CAC"}), chance.oneOf({1, 1, 2, 2, 4, 3, 7}));
            entry.description = InternedText("object " + std::to_string(address));
            entry.locked = chance.happens(8);
            entry.typeValid = !chance.happens(10);
            if (chance.happens(75))
            {
                place(map.currentSlots(), address, entry);
                address += static_cast<int>(entry.registerCount);
            }
            else
            {
                map.currentSlots()[address++].locked = chance.happens(10);
            }
        }
    }

    static std::vector<RegisterEntry> registersIn(const std::vector<RegisterEntry>& slots)
    {
        std::vector<RegisterEntry> registers;
        for (const RegisterEntry& slot : slots)
        {
            if (slot.used)
                registers.push_back(shifted(slot, 0U - slot.startAddress));
        }
        std::sort(registers.begin(), registers.end(),
                  [](const RegisterEntry& one, const RegisterEntry& other)
                  { return std::memcmp(&one, &other, sizeof one) < 0; });
        return registers;
    }

    /// Heads of used objects, and slots that are not used, vacated ones among them.
    std::vector<int> editableRows() const
    {
        std::vector<int> rows;
        const int begin = first == 0 ? 0 : first + margin / 2;
        const int end = last == lastAddress ? last : last - margin * 2;
        for (int address = begin; address <= end; ++address)
        {
            const RegisterEntry& slot = map.currentSlots()[address];
            if (!slot.used || isHead(slot))
                rows.push_back(address);
        }
        return rows;
    }

    std::vector<int> randomSelection()
    {
        const std::vector<int> rows = editableRows();
        const int begin = randomPlaceIn(rows);
        const int count = chance.oneOf({1, 1, 3, 10});
        std::vector<int> selected;
        for (int i = begin; i < begin + count && i < static_cast<int>(rows.size()); ++i)
        {
            if (chance.happens(80))
                selected.push_back(rows[static_cast<std::size_t>(i)]);
        }
        return collectSelection(map.currentSlots(), selected);
    }

    /// An index into the rows, in most cases one where there are objects.
    int randomPlaceIn(const std::vector<int>& rows)
    {
        const int any = chance.pick(0, static_cast<int>(rows.size()) - 1);
        int index = any;
        while (index > 0 && !map.currentSlots()[rows[static_cast<std::size_t>(index)]].used)
            --index;
        return chance.happens(80) ? std::max(index - chance.pick(0, 30), 0) : any;
    }

    int randomRow()
    {
        const std::vector<int> rows = editableRows();
        return rows[static_cast<std::size_t>(randomPlaceIn(rows))];
    }

    /// Appends only where all of the clipboard goes in before the next lock: otherwise it would be cut short.
    void appendWithRoom(int row)
    {
        const RegisterSlots& slots = map.currentSlots();
        while (row <= last && slots[row].used)
            ++row;
        std::size_t room = 1;
        for (int address = row + 1; address <= last && !slots[address].locked; ++address)
            room += slots[address].used ? 0 : 1;
        if (map.clipboard.size() > room)
            return;
        appendRegisters(map, row);
        appendedAt = row;
    }

    /// Pastes but where a vacated slot leads into the middle of an object that has come to its old head since: the
    /// paste would go between the registers of that object.
    void pasteBesideObjects(int row)
    {
        const RegisterEntry& slot = map.currentSlots()[row];
        const auto target = static_cast<int>(slot.startAddress - slot.address) + row;
        const RegisterEntry& pushed = map.currentSlots()[target];
        if (!pushed.used || isHead(pushed))
            pasteRegisters(map, row);
    }

    /// Edits as the editor lets the user do, that is no longer than the room allows.
    void editWithinRoom(int row)
    {
        RegisterSlots& slots = map.currentSlots();
        const std::optional<int> head = editedHead(slots, row);
        if (!head)
            return;
        const int count = std::min(chance.oneOf({1, 2, 4, 6}), editRoom(slots, *head).movableRoom);
        const RegisterEntry entry = registerOf("AD", count);
        applyEdit(map, *head,
                  {.tagname = std::string(entry.tagname.view()),
                   .description = "edited",
                   .typeName = std::string(typeName(entry.type)),
                   .registerCount = count});
    }

    void perform(Command command)
    {
        RegisterSlots& slots = map.currentSlots();
        const MoveDirection direction = chance.oneOf({MoveDirection::Up, MoveDirection::Down});
        switch (command)
        {
        case Command::Copy:
            copyRegisters(map, randomSelection());
            break;
        case Command::Cut:
            cutRegisters(map, randomSelection());
            break;
        case Command::Delete:
            eraseRegisters(map, randomSelection());
            break;
        case Command::Paste:
            pasteBesideObjects(randomRow());
            break;
        case Command::Append:
            appendWithRoom(randomRow());
            break;
        case Command::Move:
        case Command::Shove:
            moveSlots(slots, randomSelection(), direction, command == Command::Shove);
            break;
        case Command::Compress:
            compressRegisters(slots, randomSelection());
            break;
        case Command::Toggle:
            toggleLocks(slots, randomSelection());
            break;
        case Command::Purge:
            if (chance.happens(10))
                deleteErrorRegisters(map);
            break;
        case Command::Replace:
            replaceInTagnames(slots, randomSelection(), "A", chance.oneOf({"AB", "C"}));
            break;
        case Command::Edit:
            editWithinRoom(randomRow());
            break;
        }
    }

    RegisterMap map;
    Chance chance{0};
    int first = 0;
    int last = length - 1;
    int appendedAt = -1;
    std::vector<RegisterEntry> before;
};

bool rearranges(Command command)
{
    return command == Command::Move || command == Command::Shove || command == Command::Compress;
}

constexpr std::uint32_t sequences = 1200;
constexpr int stepsPerSequence = 40;

/// Runs every sequence; after each step `check` is asked with what was done.
template <typename Check>
void rehearse(Check check)
{
    TidyMap map;
    for (std::uint32_t seed = 1; seed <= sequences; ++seed)
    {
        map.begin(seed);
        for (int step = 0; step < stepsPerSequence; ++step)
        {
            const Command command = map.step();
            check(map, command);
            ASSERT_FALSE(testing::Test::HasFailure())
                << "seed " << seed << ", step " << step << ", command " << static_cast<int>(command);
        }
    }
}

} // namespace

TEST(WholeObjectProperty, NoCommandTearsAnObject)
{
    rehearse([](const TidyMap& map, Command) { EXPECT_EQ(map.tornObject(), -1); });
}

TEST(WholeObjectProperty, LockedSlotsStayButForLockingAndTheFreeOneThatAnAppendBeginsWith)
{
    int stepsWithVacatedSlots = 0;
    rehearse(
        [&](const TidyMap& map, Command command)
        {
            stepsWithVacatedSlots += map.vacatedSlots() > 0 ? 1 : 0;
            if (command != Command::Toggle)
            {
                EXPECT_EQ(map.changedLockedSlot(), -1);
            }
        });
    EXPECT_GT(stepsWithVacatedSlots, 10'000) << "too few to say anything about them";
}

TEST(WholeObjectProperty, MovingShovingAndCompressingNeitherCreateNorLoseRegisters)
{
    rehearse(
        [](const TidyMap& map, Command command)
        {
            if (rearranges(command))
            {
                EXPECT_TRUE(map.holdsTheSameRegisters());
            }
        });
}
