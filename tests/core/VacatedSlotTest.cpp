// A slot that a move has left keeps the object's fields and only stops being used. Every command has to take it for the
// free register that it is shown as.

#include "map/Clipboard.h"
#include "map/Compress.h"
#include "map/ErrorPurge.h"
#include "map/Locks.h"
#include "map/RegisterEdit.h"
#include "map/RegisterMoves.h"
#include "map/Selection.h"
#include "map/TagnameReplace.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

namespace
{

/// A map in which the head of a FLOAT has left address 10 and the object, locked since, stands right after it.
class VacatedSlot : public testing::Test
{
protected:
    VacatedSlot()
    {
        draw(slots, 10, "AA.B..");
        moveSlots(slots, std::vector{10, 11}, MoveDirection::Down, false);
        toggleLocks(slots, std::vector{11, 12});
        map.takeSnapshot();
    }

    /// What the user gets by selecting the row of a slot.
    std::vector<int> selected(int row) const { return collectSelection(slots, std::vector{row}); }

    std::string picture() const { return pictureOf(slots, 10, 6); }

    /// A slot that counts itself to an object that has moved up.
    int vacateContinuation()
    {
        draw(slots, 20, ".CC.");
        moveSlots(slots, std::vector{21, 22}, MoveDirection::Up, false);
        return 22;
    }

    RegisterMap map;
    RegisterSlots& slots = map.slots(RegisterSpace::Holding);
};

EditedRegister edited(std::string_view typeName, std::int32_t registerCount)
{
    EditedRegister values;
    values.tagname = "E";
    values.typeName = typeName;
    values.registerCount = registerCount;
    return values;
}

} // namespace

TEST_F(VacatedSlot, KeepsTheFieldsOfTheObjectThatLeftIt)
{
    EXPECT_EQ(picture(), ".aaB..");
    EXPECT_FALSE(slots[10].used);
    EXPECT_EQ(slots[10].registerCount, 2U);
    EXPECT_EQ(slots[10].tagname.view(), "A");
}

TEST_F(VacatedSlot, SelectionTakesOneAddressOfAVacatedHead)
{
    EXPECT_EQ(selected(10), std::vector{10});
}

TEST_F(VacatedSlot, SelectionTakesOneAddressThoughNoCountWasLeft)
{
    slots[10].registerCount = 0;
    EXPECT_EQ(selected(10), std::vector{10});
}

TEST_F(VacatedSlot, SelectionTakesNothingOfAVacatedContinuation)
{
    EXPECT_TRUE(selected(vacateContinuation()).empty());
}

TEST_F(VacatedSlot, DeleteClearsItAndNothingAfterIt)
{
    eraseRegisters(map, selected(10));
    EXPECT_EQ(slots[10], freeSlot(10));
    EXPECT_EQ(picture(), ".aaB..");
}

TEST_F(VacatedSlot, CutTakesOneRegisterAndNothingAfterIt)
{
    const RegisterEntry vacated = slots[10];
    cutRegisters(map, selected(10));
    EXPECT_EQ(map.clipboard, std::vector{vacated});
    EXPECT_EQ(slots[10], freeSlot(10));
    EXPECT_EQ(picture(), ".aaB..");
}

TEST_F(VacatedSlot, CopyTakesOneRegister)
{
    copyRegisters(map, selected(10));
    EXPECT_EQ(map.clipboard, std::vector{slots[10]});
    EXPECT_FALSE(map.isModified());
}

TEST_F(VacatedSlot, LockTurnsItsOwnLockAndNoOther)
{
    toggleLocks(slots, selected(10));
    EXPECT_EQ(picture(), "#aaB..");
    toggleLocks(slots, selected(10));
    EXPECT_FALSE(map.isModified());
}

TEST_F(VacatedSlot, MoveOfItsRowDoesNotDisturbTheObjectThatLeftIt)
{
    moveSlots(slots, selected(10), MoveDirection::Down, true);
    EXPECT_FALSE(map.isModified());
    moveSlots(slots, selected(10), MoveDirection::Up, true);
    EXPECT_EQ(picture(), ".aaB..");
}

TEST_F(VacatedSlot, CompressEndsItsRangeThere)
{
    draw(slots, 8, "D");
    EXPECT_EQ(compressRegisters(slots, collectSelection(slots, std::vector{8, 10})), CompressResult::Compressed);
    EXPECT_EQ(picture(), ".aaB..");
}

TEST_F(VacatedSlot, ReplaceChangesItsTextAlone)
{
    replaceInTagnames(slots, std::vector{10}, "A", "X");
    EXPECT_EQ(slots[10].tagname.view(), "X");
    EXPECT_EQ(picture(), ".aaB..");
}

TEST_F(VacatedSlot, EditorOpensEmptyOnIt)
{
    ASSERT_EQ(editedHead(slots, 10), 10);
    EXPECT_EQ(editedEntry(slots, 10), freeSlot(10));
}

TEST_F(VacatedSlot, EditorOpensEmptyOnAVacatedContinuationWhereItStands)
{
    const int address = vacateContinuation();
    ASSERT_EQ(editedHead(slots, address), address);
    EXPECT_EQ(editedEntry(slots, address), freeSlot(address));
}

TEST_F(VacatedSlot, EditorCountsItsRoomFromTheNextRegister)
{
    EXPECT_EQ(editRoom(slots, 10).freeRoom, 1);
    EXPECT_EQ(editRoom(slots, 10).movableRoom, 1);
    toggleLocks(slots, std::vector{11, 12});
    EXPECT_EQ(editRoom(slots, 10).freeRoom, 1);
    EXPECT_EQ(editRoom(slots, 10).movableRoom, 1 + registersPerSpace - 14);
    EXPECT_EQ(checkSpace("2", editRoom(slots, 10)), SpaceCheck::FitsByMoving);
}

TEST_F(VacatedSlot, ConfirmedEditFreesNothingButIt)
{
    applyEdit(map, 10, edited("INT16", 1));
    EXPECT_EQ(picture(), "EaaB..");
}

TEST_F(VacatedSlot, ConfirmedEditMovesTheObjectAfterItDown)
{
    toggleLocks(slots, std::vector{11, 12});
    applyEdit(map, 10, edited("FLOAT", 2));
    EXPECT_EQ(picture(), "EEAAB.");
}

TEST_F(VacatedSlot, PasteOnAVacatedHeadLandsThere)
{
    toggleLocks(slots, std::vector{11, 12});
    copyRegisters(map, std::vector{13});
    EXPECT_EQ(pasteRegisters(map, 10), PasteResult::Pasted);
    EXPECT_EQ(picture(), "BAAB..");
}

TEST_F(VacatedSlot, PasteOnAVacatedContinuationLandsOnItsOldHead)
{
    const int address = vacateContinuation();
    copyRegisters(map, std::vector{13});
    EXPECT_EQ(pasteRegisters(map, address), PasteResult::Pasted);
    EXPECT_EQ(pictureOf(slots, 20, 4), "CBC.");
}

TEST_F(VacatedSlot, PurgeOfAnotherSpaceClearsOneSlotThere)
{
    RegisterSlots& coil = map.slots(RegisterSpace::Coil);
    draw(coil, 10, "EFF");
    coil[10].typeValid = false;
    deleteErrorRegisters(map);
    EXPECT_TRUE(looksLike(coil, 10, ".FF"));
    EXPECT_EQ(picture(), ".aaB..");
}

TEST_F(VacatedSlot, PurgeOfAnotherSpaceClearsTheSlotThereUnderAVacatedContinuationToo)
{
    RegisterSlots& coil = map.slots(RegisterSpace::Coil);
    const int address = vacateContinuation();
    const RegisterEntry vacated = slots[address];
    draw(coil, address, "EF");
    coil[address].typeValid = false;
    deleteErrorRegisters(map);
    EXPECT_TRUE(looksLike(coil, address, ".F"));
    EXPECT_EQ(slots[address], vacated);
}
