#include "map/Clipboard.h"
#include "map/Compress.h"
#include "map/Locks.h"
#include "map/RegisterEdit.h"
#include "map/RegisterMoves.h"
#include "map/Selection.h"
#include "map/TagnameReplace.h"
#include "map/WrittenObjects.h"
#include "review/MapDifferences.h"
#include "tests/core/Chance.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>

namespace
{

/// An object by everything that a file says about it, where it is, and which of its registers it holds.
using Written = std::tuple<RegisterSpace, std::uint32_t, std::string_view, DataType, std::uint32_t, std::string, bool,
                           std::string_view, bool, std::vector<std::uint32_t>>;

std::vector<std::uint32_t> heldBy(const RegisterMap& map, RegisterSpace space, const RegisterEntry& head)
{
    std::vector<std::uint32_t> held;
    for (std::uint32_t i = 0; i < head.registerCount; ++i)
    {
        const RegisterEntry& slot = map.slots(space)[static_cast<int>(head.address + i)];
        if (slot.used && slot.startAddress == head.address)
            held.push_back(i);
    }
    return held;
}

Written writtenOf(const RegisterMap& map, RegisterSpace space, const RegisterEntry& head)
{
    const auto order = byteOrderCharacters(head);
    return {space,
            head.address,
            head.tagname.view(),
            head.type,
            head.registerCount,
            std::string(order.begin(), order.end()),
            head.write,
            head.description.view(),
            head.locked,
            heldBy(map, space, head)};
}

std::set<Written> objectsOf(const RegisterMap& map)
{
    std::set<Written> objects;
    for (const RegisterSpace space : allSpaces)
    {
        for (const RegisterEntry& slot : map.slots(space))
        {
            if (isWritten(slot))
                objects.insert(writtenOf(map, space, slot));
        }
    }
    return objects;
}

/// The objects of one map that the other one does not have just so.
std::set<Written> without(const std::set<Written>& objects, const std::set<Written>& others)
{
    std::set<Written> left;
    std::ranges::set_difference(objects, others, std::inserter(left, left.end()));
    return left;
}

/// A short stretch of a space, edited at random.
class EditedMap
{
public:
    explicit EditedMap(std::uint32_t seed) : chance(seed)
    {
        for (int address = first; address < first + 60; address += chance.pick(4, 6))
        {
            RegisterEntry entry = registerOf(chance.oneOf({"AA", "B", "CAC"}), chance.oneOf({1, 1, 2, 4, 3}));
            entry.locked = chance.happens(10);
            entry.write = chance.happens(20);
            place(map.currentSlots(), address, entry);
        }
        for (const RegisterSpace space : {RegisterSpace::Coil, RegisterSpace::Holding})
            original.slots(space) = map.slots(space);
    }

    void edit()
    {
        RegisterSlots& slots = map.currentSlots();
        const MoveDirection direction = chance.oneOf({MoveDirection::Up, MoveDirection::Down});
        switch (chance.pick(0, 8))
        {
        case 0:
            cutRegisters(map, selection());
            break;
        case 1:
            copyRegisters(map, selection());
            break;
        case 2:
            pasteRegisters(map, head());
            break;
        case 3:
            moveSlots(slots, selection(), direction, chance.happens(50));
            break;
        case 4:
            compressRegisters(slots, selection());
            break;
        case 5:
            toggleLocks(slots, selection());
            break;
        case 6:
            replaceInTagnames(slots, selection(), "A", chance.oneOf({"AB", "C"}));
            break;
        case 7:
            place(slots, head() + chance.pick(0, 2), registerOf(chance.oneOf({"AA", "D"}), chance.oneOf({1, 2})));
            break;
        default:
            change(head());
        }
        map.currentSpace = chance.happens(10) ? RegisterSpace::Coil : RegisterSpace::Holding;
    }

    RegisterMap map;
    RegisterMap original;

private:
    static constexpr int first = 100;

    std::vector<int> heads() const
    {
        std::vector<int> rows;
        for (int address = 0; address < 2 * first; ++address)
        {
            if (isWritten(map.currentSlots()[address]))
                rows.push_back(address);
        }
        return rows;
    }

    int head()
    {
        const std::vector<int> rows = heads();
        return rows.empty() ? first : rows[static_cast<std::size_t>(chance.pick(0, static_cast<int>(rows.size()) - 1))];
    }

    std::vector<int> selection() { return collectSelection(map.currentSlots(), std::vector<int>{head()}); }

    void change(int address)
    {
        const std::optional<int> edited = editedHead(map.currentSlots(), address);
        if (!edited)
            return;
        const int count = std::min(chance.oneOf({1, 2, 4}), editRoom(map.currentSlots(), *edited).movableRoom);
        const RegisterEntry entry = registerOf(chance.oneOf({"AA", "D"}), count);
        applyEdit(map, *edited,
                  {.tagname = std::string(entry.tagname.view()),
                   .description = chance.oneOf({"about AA", "edited"}),
                   .typeName = std::string(typeName(entry.type)),
                   .write = chance.happens(50),
                   .SwapWords = chance.happens(50),
                   .registerCount = count});
    }

    Chance chance;
};

/// What the changes name on one side; fails when they name an object twice.
std::set<Written> named(const RegisterMap& map, const std::vector<ObjectChange>& changes,
                        std::optional<MapObject> ObjectChange::*side)
{
    std::set<Written> objects;
    for (const ObjectChange& change : changes)
    {
        if (const auto& object = change.*side)
        {
            EXPECT_TRUE(objects.insert(writtenOf(map, object->space, object->head)).second);
        }
    }
    return objects;
}

bool has(const ObjectChange& change, ChangeKind kind)
{
    return std::ranges::count(change.kinds, kind) == 1;
}

/// Fails when the kinds say anything but what differs.
void expectTrueKinds(const EditedMap& edited, const ObjectChange& change)
{
    ASSERT_FALSE(change.kinds.empty());
    EXPECT_EQ(has(change, ChangeKind::Added), !change.before);
    EXPECT_EQ(has(change, ChangeKind::Removed), !change.after);
    if (!change.before || !change.after)
        return;
    const Written was = writtenOf(edited.original, change.before->space, change.before->head);
    const Written is = writtenOf(edited.map, change.after->space, change.after->head);
    EXPECT_EQ(has(change, ChangeKind::Moved),
              std::get<0>(was) != std::get<0>(is) || std::get<1>(was) != std::get<1>(is));
    EXPECT_EQ(std::get<2>(was), std::get<2>(is));
    EXPECT_EQ(has(change, ChangeKind::Retyped), std::get<3>(was) != std::get<3>(is));
    EXPECT_EQ(has(change, ChangeKind::Resized), std::get<4>(was) != std::get<4>(is));
    EXPECT_EQ(has(change, ChangeKind::ByteOrder), std::get<5>(was) != std::get<5>(is));
    EXPECT_EQ(has(change, ChangeKind::Write), std::get<6>(was) != std::get<6>(is));
    EXPECT_EQ(has(change, ChangeKind::Description), std::get<7>(was) != std::get<7>(is));
    EXPECT_EQ(has(change, ChangeKind::Lock), std::get<8>(was) != std::get<8>(is));
    if (std::get<4>(was) == std::get<4>(is))
    {
        EXPECT_EQ(has(change, ChangeKind::Overwritten) || has(change, ChangeKind::Uncovered),
                  std::get<9>(was) != std::get<9>(is));
    }
}

} // namespace

TEST(MapDifferencesProperty, AnyEditsAreToldByExactlyTheObjectsThatChanged)
{
    constexpr std::uint32_t sequences = 60;
    constexpr int editsPerSequence = 6;
    std::size_t changed = 0;
    for (std::uint32_t seed = 1; seed <= sequences; ++seed)
    {
        EditedMap edited(seed);
        ASSERT_TRUE(mapDifferences(edited.original, edited.map).empty());
        for (int i = 0; i < editsPerSequence; ++i)
            edited.edit();
        const std::vector<ObjectChange> changes = mapDifferences(edited.original, edited.map);
        const std::set<Written> before = objectsOf(edited.original);
        const std::set<Written> after = objectsOf(edited.map);
        EXPECT_EQ(named(edited.original, changes, &ObjectChange::before), without(before, after)) << "seed " << seed;
        EXPECT_EQ(named(edited.map, changes, &ObjectChange::after), without(after, before)) << "seed " << seed;
        for (const ObjectChange& change : changes)
            expectTrueKinds(edited, change);
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
        changed += changes.size();
    }
    EXPECT_GT(changed, sequences) << "too few to say anything about them";
}
