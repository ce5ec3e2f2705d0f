#include "map/ErrorPurge.h"

#include "map/ErrorMarks.h"
#include "tests/core/MapBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

/// A map that shows Holding.
class ErrorPurge : public testing::Test
{
protected:
    RegisterSlots& coil() { return map.slots(RegisterSpace::Coil); }
    RegisterSlots& holding() { return map.slots(RegisterSpace::Holding); }

    /// Purges with the objects named E in error, and no others.
    void purge()
    {
        for (const RegisterSpace space : allSpaces)
        {
            for (RegisterEntry& slot : map.slots(space))
                slot.typeValid = slot.tagname.view() != "E";
        }
        deleteErrorRegisters(map);
    }

    RegisterMap map;
};

} // namespace

TEST_F(ErrorPurge, ObjectsInErrorGoFromTheCurrentSpace)
{
    draw(holding(), 10, "AAEEEEB.E");
    purge();
    EXPECT_TRUE(looksLike(holding(), 10, "AA....B.."));
}

TEST_F(ErrorPurge, EveryKindOfMarkIsEnough)
{
    draw(holding(), 10, "ABCD");
    holding()[10].typeValid = false;
    holding()[11].writeValid = false;
    holding()[12].tagIndex = -1;
    deleteErrorRegisters(map);
    EXPECT_TRUE(looksLike(holding(), 10, "...D"));
}

TEST_F(ErrorPurge, MarksAreTakenAsTheyStand)
{
    draw(holding(), 10, "A");
    holding()[10].tagIndex = 12'345;
    deleteErrorRegisters(map);
    EXPECT_EQ(pictureOf(holding(), 10, 1), "A");
}

TEST_F(ErrorPurge, FreeSlotsAreNotLookedAt)
{
    draw(holding(), 10, "AA");
    holding()[10].used = false;
    holding()[10].typeValid = false;
    deleteErrorRegisters(map);
    EXPECT_EQ(holding()[10].tagname.view(), "A");
}

TEST_F(ErrorPurge, LockedRegistersStayAndStayMarked)
{
    draw(holding(), 10, "eeE");
    purge();
    EXPECT_EQ(pictureOf(holding(), 10, 3), "ee.");
    EXPECT_TRUE(hasError(holding()[10]));
    EXPECT_TRUE(hasError(holding()[11]));
}

TEST_F(ErrorPurge, UnlockedHeadTakesItsLockedContinuationAlong)
{
    draw(holding(), 10, "EE");
    holding()[11].locked = true;
    purge();
    EXPECT_TRUE(looksLike(holding(), 10, ".."));
}

TEST_F(ErrorPurge, ContinuationInErrorGoesAlone)
{
    draw(holding(), 10, "AAA");
    holding()[11].tagname = InternedText("E");
    purge();
    EXPECT_EQ(pictureOf(holding(), 10, 3), "A.A");
}

TEST_F(ErrorPurge, ObjectCutOffByTheEndOfTheSpaceIsErased)
{
    draw(holding(), 65'533, "A");
    place(holding(), 65'534, registerOf("E", 4));
    purge();
    EXPECT_TRUE(looksLike(holding(), 65'533, "A.."));
}

TEST_F(ErrorPurge, LockInTheCurrentSpaceProtectsTheOtherSpaces)
{
    draw(coil(), 7, "E");
    draw(holding(), 7, "#");
    purge();
    EXPECT_EQ(pictureOf(coil(), 7, 1), "E");
    EXPECT_TRUE(looksLike(holding(), 7, "#"));
}

TEST_F(ErrorPurge, LockInAnotherSpaceProtectsNothingThere)
{
    draw(coil(), 7, "e");
    purge();
    EXPECT_TRUE(looksLike(coil(), 7, "."));
}

TEST_F(ErrorPurge, ContinuationSlotOfTheCurrentSpaceGoesInPlaceOfTheOneInError)
{
    draw(coil(), 7, "E");
    draw(holding(), 6, "AA");
    purge();
    EXPECT_EQ(pictureOf(coil(), 7, 1), "E");
    EXPECT_EQ(pictureOf(holding(), 6, 2), "A.");
}

TEST_F(ErrorPurge, CountOfTheCurrentSpaceIsErasedInTheOthers)
{
    draw(coil(), 7, "EBBBC");
    draw(holding(), 7, "AAA");
    purge();
    EXPECT_EQ(pictureOf(coil(), 7, 5), "...BC");
    EXPECT_TRUE(looksLike(holding(), 7, "AAA"));
}

TEST_F(ErrorPurge, FreeSlotsInTheCurrentSpaceOthersRegisterByRegister)
{
    draw(coil(), 7, "AEEEB");
    purge();
    EXPECT_TRUE(looksLike(coil(), 7, "A...B"));
}

TEST_F(ErrorPurge, CountBeyondTheSpaceEndsWithIt)
{
    draw(coil(), 65'530, "AEBCDE");
    draw(holding(), 65'531, "A");
    holding()[65'531].registerCount = std::numeric_limits<std::uint32_t>::max();
    purge();
    EXPECT_TRUE(looksLike(coil(), 65'530, "A....."));
    EXPECT_TRUE(looksLike(coil(), 0, "...."));
}

TEST_F(ErrorPurge, MapThatIsAllInErrorIsEmptyAfterwards)
{
    for (const RegisterSpace space : allSpaces)
        draw(map.slots(space), 0, std::string(65'536, 'E'));
    purge();
    EXPECT_FALSE(map.isModified());
}

TEST_F(ErrorPurge, MapWithoutErrorsStaysAsItIs)
{
    for (const RegisterSpace space : allSpaces)
        draw(map.slots(space), 100, "AAB.c#");
    map.takeSnapshot();
    deleteErrorRegisters(map);
    EXPECT_FALSE(map.isModified());
}
