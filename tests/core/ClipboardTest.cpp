#include "map/Clipboard.h"

#include "map/RegisterMoves.h"
#include "map/Selection.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

/// A map whose Holding space is shown and drawn on; the other spaces are free.
class Clipboard : public testing::Test
{
protected:
    void drawAt(int first, std::string_view picture) { draw(map.currentSlots(), first, picture); }

    /// What the user gets by selecting rows.
    std::vector<int> selected(const std::vector<int>& rows) const { return collectSelection(map.currentSlots(), rows); }

    void copyRows(const std::vector<int>& rows) { copyRegisters(map, selected(rows)); }

    /// The picture of a stretch, when every field of its slots is as drawn.
    std::string shown(int first, int count) const
    {
        const std::string picture = pictureOf(map.currentSlots(), first, count);
        return looksLike(map.currentSlots(), first, picture) ? picture : picture + " with other contents";
    }

    /// Fills the clipboard with an object, then removes it from where it was drawn.
    void holdInClipboard(std::string_view picture)
    {
        drawAt(900, picture);
        std::vector<int> addresses;
        for (int address = 900; address < 900 + static_cast<int>(picture.size()); ++address)
            addresses.push_back(address);
        copyRegisters(map, addresses);
        clearSlots(map.currentSlots(), 900, static_cast<std::uint32_t>(picture.size()));
    }

    RegisterMap map;
};

} // namespace

TEST_F(Clipboard, CopyTakesEveryFieldOfEverySlotInListOrder)
{
    drawAt(10, "AAb");
    map.currentSlots()[11].writeValid = false;
    copyRegisters(map, std::vector{12, 10, 11});
    EXPECT_EQ(map.clipboard, (std::vector{map.currentSlots()[12], map.currentSlots()[10], map.currentSlots()[11]}));
    EXPECT_EQ(shown(10, 2), "AA with other contents");
}

TEST_F(Clipboard, CopyReplacesWhatWasThere)
{
    drawAt(10, "AAB");
    copyRows({10});
    copyRows({12});
    ASSERT_EQ(map.clipboard.size(), 1U);
    EXPECT_EQ(map.clipboard.front().tagname.view(), "B");
}

TEST_F(Clipboard, EmptySelectionLeavesMapAndClipboardAlone)
{
    drawAt(10, "AAB");
    copyRows({12});
    copyRegisters(map, {});
    cutRegisters(map, {});
    eraseRegisters(map, {});
    EXPECT_EQ(map.clipboard.size(), 1U);
    EXPECT_EQ(shown(10, 3), "AAB");
}

TEST_F(Clipboard, AddressesOutsideTheSpaceArePassedOver)
{
    drawAt(10, "AA");
    const std::vector<int> addresses{
        -1, 10, 65'536, 11, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    cutRegisters(map, addresses);
    EXPECT_EQ(map.clipboard.size(), 2U);
    EXPECT_EQ(shown(10, 2), "..");
}

TEST_F(Clipboard, CopyKeepsOneRegisterMoreThanASpaceTakes)
{
    drawAt(0, "A");
    copyRegisters(map, std::vector<int>(200'000, 0));
    EXPECT_EQ(map.clipboard.size(), 65'537U);
    EXPECT_EQ(pasteRegisters(map, 0), PasteResult::NoRoom);
    EXPECT_FALSE(appendRegisters(map, 0));
}

TEST_F(Clipboard, FloatPastedOnAnIntegerPushesItDown)
{
    drawAt(10, "B..");
    drawAt(100, "AA");
    copyRows({100});
    EXPECT_EQ(map.clipboard.size(), 2U);
    EXPECT_EQ(pasteRegisters(map, 10), PasteResult::Pasted);
    EXPECT_EQ(shown(10, 3), "AAB");
}

TEST_F(Clipboard, PasteOnAContinuationSlotLandsOnTheHead)
{
    drawAt(10, "BBBB.");
    holdInClipboard("A");
    EXPECT_EQ(pasteRegisters(map, 13), PasteResult::Pasted);
    EXPECT_EQ(shown(10, 5), "ABBBB");
}

TEST_F(Clipboard, PasteWithoutRoomBeforeALockChangesNothing)
{
    drawAt(10, "B.C.#......");
    holdInClipboard("AAA");
    const std::vector<RegisterEntry> held = map.clipboard;
    EXPECT_EQ(pasteRegisters(map, 10), PasteResult::NoRoom);
    EXPECT_EQ(shown(10, 11), "B.C.#......");
    EXPECT_EQ(map.clipboard, held);
}

TEST_F(Clipboard, PasteFillsTheLastFreeSlotBeforeALock)
{
    drawAt(10, "B.C.d");
    holdInClipboard("AA");
    EXPECT_EQ(pasteRegisters(map, 10), PasteResult::Pasted);
    EXPECT_EQ(shown(10, 5), "AABCd");
}

TEST_F(Clipboard, PasteOnALockedSlotHasNoRoom)
{
    drawAt(10, "#....b....");
    holdInClipboard("A");
    EXPECT_EQ(pasteRegisters(map, 10), PasteResult::NoRoom);
    EXPECT_EQ(pasteRegisters(map, 15), PasteResult::NoRoom);
    EXPECT_EQ(shown(10, 10), "#....b....");
}

TEST_F(Clipboard, PasteCountsFreeSlotsToTheEndOfTheSpace)
{
    drawAt(65'531, "BC.D.");
    holdInClipboard("AAA");
    EXPECT_EQ(pasteRegisters(map, 65'531), PasteResult::NoRoom);
    EXPECT_EQ(shown(65'531, 5), "BC.D.");
    holdInClipboard("AA");
    EXPECT_EQ(pasteRegisters(map, 65'531), PasteResult::Pasted);
    EXPECT_EQ(shown(65'531, 5), "AABCD");
}

TEST_F(Clipboard, PasteAtTheLastAddress)
{
    holdInClipboard("AA");
    EXPECT_EQ(pasteRegisters(map, 65'535), PasteResult::NoRoom);
    holdInClipboard("A");
    EXPECT_EQ(pasteRegisters(map, 65'535), PasteResult::Pasted);
    EXPECT_EQ(pasteRegisters(map, 65'535), PasteResult::NoRoom);
    EXPECT_EQ(shown(65'535, 1), "A");
}

TEST_F(Clipboard, PasteOutsideTheSpaceOrOfNothingDoesNothing)
{
    EXPECT_EQ(pasteRegisters(map, 0), PasteResult::NothingToDo);
    EXPECT_FALSE(appendRegisters(map, 0));
    holdInClipboard("A");
    for (const int row : {-1, 65'536, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        EXPECT_EQ(pasteRegisters(map, row), PasteResult::NothingToDo);
        EXPECT_FALSE(appendRegisters(map, row));
    }
    EXPECT_FALSE(map.isModified());
}

TEST_F(Clipboard, PasteOnAnObjectThatBeginsBeforeTheSpaceDoesNothing)
{
    holdInClipboard("A");
    drawAt(0, "B");
    map.currentSlots()[0].startAddress = 0xFFFFFFFE;
    EXPECT_EQ(pasteRegisters(map, 0), PasteResult::NothingToDo);
    map.currentSlots()[0].startAddress = 65'536;
    EXPECT_EQ(pasteRegisters(map, 0), PasteResult::NothingToDo);
}

TEST_F(Clipboard, PasteInAnEmptySpaceStartsAtZero)
{
    holdInClipboard("AAB");
    EXPECT_EQ(pasteRegisters(map, 0), PasteResult::Pasted);
    EXPECT_EQ(shown(0, 4), "AAB.");
}

TEST_F(Clipboard, SameContentPastesAnyNumberOfTimes)
{
    holdInClipboard("AAB");
    EXPECT_EQ(pasteRegisters(map, 0), PasteResult::Pasted);
    EXPECT_EQ(pasteRegisters(map, 3), PasteResult::Pasted);
    EXPECT_EQ(pasteRegisters(map, 0), PasteResult::Pasted);
    EXPECT_EQ(shown(0, 10), "AABAABAAB.");
}

TEST_F(Clipboard, GapInsideACopiedRangeSurvivesThePaste)
{
    drawAt(5, "AA.BB");
    copyRegisters(map, std::vector{5, 6, 7, 8, 9});
    drawAt(100, "CDEFG");
    EXPECT_EQ(pasteRegisters(map, 100), PasteResult::Pasted);
    EXPECT_EQ(shown(100, 10), "AA.BBCDEFG");
}

TEST_F(Clipboard, LockedRegistersArePastedLocked)
{
    holdInClipboard("aa#");
    EXPECT_EQ(pasteRegisters(map, 20), PasteResult::Pasted);
    EXPECT_EQ(shown(20, 3), "aa#");
}

TEST_F(Clipboard, PastedRegistersKeepTheirErrorMarks)
{
    drawAt(10, "A");
    map.currentSlots()[10].typeValid = false;
    map.currentSlots()[10].tagIndex = -1;
    copyRows({10});
    pasteRegisters(map, 20);
    EXPECT_FALSE(map.currentSlots()[20].typeValid);
    EXPECT_EQ(map.currentSlots()[20].tagIndex, -1);
}

TEST_F(Clipboard, RegistersOfOneSpacePasteIntoAnother)
{
    drawAt(40'000, "AAAAB");
    copyRows({40'000, 40'004});
    map.currentSpace = RegisterSpace::Coil;
    drawAt(7, "C");
    EXPECT_EQ(pasteRegisters(map, 7), PasteResult::Pasted);
    EXPECT_EQ(shown(7, 6), "AAAABC");
    map.currentSpace = RegisterSpace::Holding;
    EXPECT_EQ(shown(40'000, 5), "AAAAB");
    EXPECT_EQ(shown(7, 6), "......");
}

TEST_F(Clipboard, ObjectCutOffByTheEndOfTheSpaceIsCopiedAsFarAsItGoes)
{
    place(map.currentSlots(), 65'534, registerOf("A", 4));
    copyRows({65'534});
    ASSERT_EQ(map.clipboard.size(), 2U);
    EXPECT_EQ(pasteRegisters(map, 65'530), PasteResult::Pasted);
    EXPECT_EQ(pictureOf(map.currentSlots(), 65'530, 6), "AA..AA");
    EXPECT_EQ(map.currentSlots()[65'531].registerCount, 4U);
    EXPECT_EQ(map.currentSlots()[65'531].startAddress, 65'530U);
}

TEST_F(Clipboard, SlotVacatedByAMoveLeadsAPasteToItsOldHeadWhateverStandsThere)
{
    holdInClipboard("X");
    drawAt(9, ".BB.");
    moveSlots(map.currentSlots(), std::vector{10, 11}, MoveDirection::Up, false);
    EXPECT_EQ(pasteRegisters(map, 11), PasteResult::Pasted);
    EXPECT_EQ(pictureOf(map.currentSlots(), 9, 4), "BXB.");
}

TEST_F(Clipboard, AppendGoesBehindTheRunThatBeginsAtTheRow)
{
    drawAt(20, "BBCCD....");
    holdInClipboard("AA");
    EXPECT_TRUE(appendRegisters(map, 20));
    EXPECT_EQ(shown(20, 9), "BBCCDAA..");
}

TEST_F(Clipboard, AppendPushesWhatFollowsTheFirstFreeSlot)
{
    drawAt(20, "BB.CD.E.");
    holdInClipboard("AA");
    EXPECT_TRUE(appendRegisters(map, 21));
    EXPECT_EQ(shown(20, 8), "BBAACDE.");
}

TEST_F(Clipboard, AppendTakesALockedFreeSlot)
{
    drawAt(20, "B#C.");
    holdInClipboard("AA");
    EXPECT_TRUE(appendRegisters(map, 20));
    EXPECT_EQ(shown(20, 4), "BAAC");
}

TEST_F(Clipboard, AppendAgainstALockPutsInWhatFits)
{
    drawAt(20, "B.c...");
    holdInClipboard("XYZ");
    EXPECT_TRUE(appendRegisters(map, 20));
    EXPECT_EQ(shown(20, 6), "BXc...");
}

TEST_F(Clipboard, AppendBesideTheEndOfTheSpaceIsSilentlyRefused)
{
    drawAt(65'532, "BB..");
    holdInClipboard("XYZ");
    EXPECT_FALSE(appendRegisters(map, 65'532));
    EXPECT_EQ(shown(65'532, 4), "BB..");
    holdInClipboard("XY");
    EXPECT_TRUE(appendRegisters(map, 65'532));
    EXPECT_EQ(shown(65'532, 4), "BBXY");
}

TEST_F(Clipboard, AppendBehindARunThatReachesTheEndIsSilentlyRefused)
{
    drawAt(65'534, "BB");
    holdInClipboard("A");
    EXPECT_FALSE(appendRegisters(map, 65'534));
    EXPECT_EQ(shown(65'534, 2), "BB");
}

TEST_F(Clipboard, AppendThatRunsIntoTheEndOfTheSpaceKeepsWhatFits)
{
    drawAt(65'530, "B.CCCD");
    holdInClipboard("XYZ");
    EXPECT_TRUE(appendRegisters(map, 65'530));
    EXPECT_EQ(shown(65'530, 6), "BXCCCD");
}

TEST_F(Clipboard, CutCopiesLockedObjectsAndLeavesThem)
{
    drawAt(10, "AAbbCC");
    cutRegisters(map, selected({10, 12, 14}));
    EXPECT_EQ(map.clipboard.size(), 6U);
    EXPECT_EQ(shown(10, 6), "..bb..");
}

TEST_F(Clipboard, DeleteMovesNothingAndLeavesTheClipboard)
{
    drawAt(10, "AABCC");
    copyRows({10});
    eraseRegisters(map, selected({12}));
    EXPECT_EQ(shown(10, 5), "AA.CC");
    EXPECT_EQ(map.clipboard.size(), 2U);
}

TEST_F(Clipboard, DeleteLooksAtTheLockOfTheHeadOnly)
{
    drawAt(10, "AAA");
    map.currentSlots()[12].locked = true;
    eraseRegisters(map, selected({10}));
    EXPECT_EQ(shown(10, 3), "...");
}

TEST_F(Clipboard, LockedHeadIsKeptWhileItsUnlockedContinuationGoes)
{
    drawAt(10, "AAA");
    map.currentSlots()[10].locked = true;
    eraseRegisters(map, selected({10}));
    EXPECT_EQ(pictureOf(map.currentSlots(), 10, 3), "a..");
}

TEST_F(Clipboard, DeleteOfAnObjectCutOffByTheEndFreesWhatIsThere)
{
    drawAt(65'532, "BB");
    place(map.currentSlots(), 65'534, registerOf("A", 4));
    eraseRegisters(map, selected({65'534}));
    EXPECT_EQ(shown(65'532, 4), "BB..");
}

TEST_F(Clipboard, CommandsLeaveTheOtherSpacesAlone)
{
    for (const RegisterSpace space : allSpaces)
        draw(map.slots(space), 10, "AAB.");
    cutRegisters(map, selected({10}));
    pasteRegisters(map, 12);
    for (const RegisterSpace space : {RegisterSpace::Coil, RegisterSpace::Input, RegisterSpace::Status})
        EXPECT_TRUE(looksLike(map.slots(space), 10, "AAB."));
}

TEST(InsertionTarget, IsTheFirstSelectedRow)
{
    const std::vector<int> selected{7, 9};
    EXPECT_EQ(insertionTarget(20, selected), 7);
}

TEST(InsertionTarget, IsNoneWhenRowsAreShownAndNoneIsSelected)
{
    EXPECT_EQ(insertionTarget(1, {}), std::nullopt);
}

TEST(InsertionTarget, IsTheStartOfTheSpaceWhenNoRowIsShown)
{
    EXPECT_EQ(insertionTarget(0, {}), 0);
}
