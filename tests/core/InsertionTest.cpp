#include "map/Insertion.h"

#include "tests/core/Chance.h"
#include "tests/core/LiteralModel.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

/// The registers of a picture, with the addresses that they would have from `first` on.
std::vector<RegisterEntry> registersOf(std::string_view picture, int first = 500)
{
    const auto slots = drawnSpace(first, picture);
    return {slots->begin() + first, slots->begin() + first + static_cast<std::ptrdiff_t>(picture.size())};
}

/// What a space looks like after inserting, from `first` on, over the length of what stood there.
std::string inserted(std::string_view picture, std::string_view elements, int target, int first = 10)
{
    const auto slots = drawnSpace(first, picture);
    insertRegisters(*slots, registersOf(elements), target);
    const std::string result = pictureOf(*slots, first, static_cast<int>(picture.size()));
    return looksLike(*slots, first, result) ? result : result + " with other contents";
}

} // namespace

TEST(Insertion, FreeSlotsAreTakenAsTheyAre)
{
    EXPECT_EQ(inserted("A...B", "NNY", 11), "ANNYB");
}

TEST(Insertion, UsedSlotsSlideDownInTheirOrder)
{
    EXPECT_EQ(inserted("AABC...", "NNN", 10), "NNNAABC");
}

TEST(Insertion, GapsBehindTheTargetAreUsedUpOneByOne)
{
    EXPECT_EQ(inserted("A.B.C.D", "NN", 10), "NNABC.D");
    EXPECT_EQ(inserted("A.B.C.D", "N", 10), "NAB.C.D");
    EXPECT_EQ(inserted("A..B.", "NNN", 10), "NNNAB");
}

TEST(Insertion, FreeSlotsBeforeTheFirstUsedOneAreFilledWithoutPushing)
{
    EXPECT_EQ(inserted("..AB..C", "NNNN", 10), "NNNNABC");
}

TEST(Insertion, ElementsKeepTheirPlaceInTheirObjectWhereverTheyComeFrom)
{
    const auto slots = drawnSpace(0, "");
    std::vector<RegisterEntry> elements = registersOf("AAAA", 20);
    insertRegisters(*slots, elements, 40'000);
    EXPECT_TRUE(looksLike(*slots, 40'000, "AAAA"));
    elements.erase(elements.begin());
    insertRegisters(*slots, elements, 100);
    EXPECT_EQ((*slots)[100].startAddress, 99U);
    EXPECT_EQ((*slots)[100].address, 100U);
}

TEST(Insertion, ContinuationInsertedAtTheStartOfTheSpaceWrapsAround)
{
    const auto slots = drawnSpace(0, "");
    const std::vector<RegisterEntry> elements = registersOf("AA");
    insertRegisters(*slots, std::span(elements).subspan(1), 0);
    EXPECT_EQ((*slots)[0].startAddress, std::numeric_limits<std::uint32_t>::max());
    EXPECT_EQ((*slots)[0].address, 0U);
}

TEST(Insertion, FreeElementsReplaceWhatTheyPushAway)
{
    EXPECT_EQ(inserted("AB...", "N.Y", 10), "N.YAB");
}

TEST(Insertion, LockedElementsStayLocked)
{
    EXPECT_EQ(inserted("A...", "n#", 10), "n#A.");
}

TEST(Insertion, LockedFreeSlotIsWrittenOverWhileNothingIsPushed)
{
    EXPECT_EQ(inserted("#.#A", "NYZ", 10), "NYZA");
}

TEST(Insertion, LockBeforeTheNextFreeSlotStopsAndKeepsWhatIsWritten)
{
    EXPECT_EQ(inserted("A.Bc..", "NYZ", 10), "NABc..");
    EXPECT_EQ(inserted("A#....", "NNN", 10), "A#....");
    EXPECT_EQ(inserted("a.....", "N", 10), "a.....");
    EXPECT_EQ(inserted("A.B#..", "NY", 10), "NAB#..");
    EXPECT_EQ(inserted("..Bc..", "NYZ", 10), "NYBc..");
}

TEST(Insertion, LockBehindALaterGapStopsOnlyTheLaterPushes)
{
    EXPECT_EQ(inserted("AB.C.#.", "WNYZ", 10), "WNABC#.");
}

TEST(Insertion, EndOfTheSpaceStopsAndKeepsWhatIsWritten)
{
    EXPECT_EQ(inserted("A.B.C", "NYZ", 65'531, 65'531), "NYABC");
    EXPECT_EQ(inserted("A", "N", 65'535, 65'535), "A");
    EXPECT_EQ(inserted(".", "NYZ", 65'535, 65'535), "N");
}

TEST(Insertion, TargetOutsideTheSpaceWritesNothing)
{
    const auto slots = drawnSpace(0, "A");
    const std::vector<RegisterEntry> elements = registersOf("NN");
    for (const int target : {-1, -2, 65'536, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        insertRegisters(*slots, elements, target);
    EXPECT_EQ(*slots, *drawnSpace(0, "A"));
}

TEST(Insertion, NoElementsChangeNothing)
{
    EXPECT_EQ(inserted("AB.", "", 10), "AB.");
}

TEST(Insertion, MoreElementsThanTheSpaceIsLongEndWithIt)
{
    const auto slots = drawnSpace(0, "");
    const std::vector<RegisterEntry> elements(100'000, registersOf("N").front());
    insertRegisters(*slots, elements, 65'530);
    EXPECT_EQ(pictureOf(*slots, 65'529, 7), ".NNNNNN");
}

TEST(Insertion, VacatedSlotsCountAsFree)
{
    const auto slots = drawnSpace(10, "ABC.");
    (*slots)[11].used = false;
    insertRegisters(*slots, registersOf("N"), 10);
    EXPECT_TRUE(looksLike(*slots, 10, "NAC."));
}

TEST(Insertion, LongBlockGoesInFrontOfALongRun)
{
    const auto slots = drawnSpace(0, std::string(30'000, 'A'));
    insertRegisters(*slots, registersOf(std::string(30'000, 'B')), 0);
    EXPECT_TRUE(looksLike(*slots, 0, std::string(30'000, 'B') + std::string(30'000, 'A')));
}

TEST(Insertion, EqualsInsertingOneSlotAfterAnother)
{
    const auto slots = drawnSpace(0, "");
    LiteralModel model;
    const std::vector<std::vector<RegisterEntry>> clipboards{registersOf("N"), registersOf("NN"), registersOf("N.YY"),
                                                             registersOf("NNNNZZ"), registersOf("NYz#W.V")};
    for (std::uint32_t seed = 1; seed <= 20'000; ++seed)
    {
        Chance chance(seed);
        constexpr int length = 40;
        const int first = chance.oneOf({0, 300, registersPerSpace - length});
        const int gaps = chance.oneOf({10, 40, 80});
        model.reset();
        for (int address = first; address < first + length; ++address)
        {
            RegisterEntry slot = registerOf(chance.oneOf({"A", "B"}), chance.oneOf({1, 2, 4}));
            slot.address = static_cast<std::uint32_t>(address);
            slot.startAddress = slot.address - static_cast<std::uint32_t>(chance.pick(0, 3));
            slot.used = !chance.happens(gaps);
            slot.locked = chance.happens(4);
            (*slots)[address] = slot;
            model.set(model.currentSpace, address, slot);
        }
        model.clipboard = clipboards[static_cast<std::size_t>(chance.pick(0, 4))];
        const int target = chance.pick(first, first + length - 1);
        insertRegisters(*slots, model.clipboard, target);
        model.insertClipboard(target);
        for (int address = first; address < std::min(first + length + 10, registersPerSpace); ++address)
        {
            ASSERT_EQ((*slots)[address], model.at(model.currentSpace, address))
                << "seed " << seed << ", address " << address;
        }
        clearSlots(*slots, first, length + 10);
    }
}
