// What the editor finds out before anything is changed: the room for an object, its length as typed, and the fields
// that its type has.

#include "tests/core/RegisterEditFixture.h"

namespace
{

using RegisterEditChecks = RegisterEditFixture;

} // namespace

TEST_F(RegisterEditChecks, FreeRoomEndsAtTheNextObject)
{
    place(10, 2, "A");
    place(15, 1, "B");
    EXPECT_EQ(editRoom(slots, 10).freeRoom, 5);
    place(12, 1, "C");
    EXPECT_EQ(editRoom(slots, 10).freeRoom, 2);
}

TEST_F(RegisterEditChecks, MovableRoomCountsScatteredFreeRegistersUpToALock)
{
    place(10, 2, "A");
    place(13, 1, "B");
    place(15, 2, "C");
    slot(20).locked = true;
    EXPECT_EQ(editRoom(slots, 10).freeRoom, 3);
    EXPECT_EQ(editRoom(slots, 10).movableRoom, 2 + 1 + 1 + 3);
    slot(15).locked = true;
    EXPECT_EQ(editRoom(slots, 10).movableRoom, 2 + 1 + 1);
}

TEST_F(RegisterEditChecks, RoomReachesToTheEndOfTheSpace)
{
    place(65530, 2, "A");
    place(65534, 1, "B");
    EXPECT_EQ(editRoom(slots, 65530).freeRoom, 4);
    EXPECT_EQ(editRoom(slots, 65530).movableRoom, 5);
    EXPECT_EQ(editRoom(slots, 0).freeRoom, 65530);
    EXPECT_EQ(editRoom(slots, 0).movableRoom, 65533);
}

TEST_F(RegisterEditChecks, LockedFreeRegisterEndsTheMovableRoomOnly)
{
    place(10, 1, "A");
    place(14, 1, "B");
    slot(12).locked = true;
    EXPECT_EQ(editRoom(slots, 10).freeRoom, 4);
    EXPECT_EQ(editRoom(slots, 10).movableRoom, 2);
    EXPECT_EQ(checkSpace("3", editRoom(slots, 10)), SpaceCheck::TooLong);
}

TEST_F(RegisterEditChecks, ObjectCutOffByTheEndOfTheSpaceMayStayAsLongAsItIs)
{
    place(65534, 4, "A", DataType::Double);
    const EditRoom room = editRoom(slots, 65534);
    EXPECT_EQ(room.freeRoom, 4);
    EXPECT_EQ(room.movableRoom, 4);
    EXPECT_EQ(checkSpace("4", room), SpaceCheck::Fits);
    EXPECT_EQ(checkSpace("5", room), SpaceCheck::TooLong);
}

TEST_F(RegisterEditChecks, EnormousCountsSaturateTheRoom)
{
    place(10, 1, "A");
    for (const std::uint32_t count : {2147483647U, 2147483648U, 4294967295U})
    {
        slot(10).registerCount = count;
        EXPECT_EQ(editRoom(slots, 10).freeRoom, highestCount);
        EXPECT_EQ(editRoom(slots, 10).movableRoom, highestCount);
    }
}

TEST_F(RegisterEditChecks, LengthEqualToARoomFitsIt)
{
    const EditRoom room{3, 6};
    EXPECT_EQ(checkSpace("1", room), SpaceCheck::Fits);
    EXPECT_EQ(checkSpace("3", room), SpaceCheck::Fits);
    EXPECT_EQ(checkSpace("4", room), SpaceCheck::FitsByMoving);
    EXPECT_EQ(checkSpace("6", room), SpaceCheck::FitsByMoving);
    EXPECT_EQ(checkSpace("7", room), SpaceCheck::TooLong);
    EXPECT_EQ(checkSpace("6", {6, 6}), SpaceCheck::Fits);
}

TEST_F(RegisterEditChecks, SpaceIsComparedWithSigns)
{
    EXPECT_EQ(checkSpace("-1", {1, 1}), SpaceCheck::Fits);
    EXPECT_EQ(checkSpace("1", {0, 0}), SpaceCheck::TooLong);
    EXPECT_EQ(checkSpace(std::to_string(highestCount), {1, highestCount}), SpaceCheck::FitsByMoving);
}

TEST_F(RegisterEditChecks, WholeNumbersParseAsLength)
{
    EXPECT_EQ(parseLength("12"), 12);
    EXPECT_EQ(parseLength("0"), 0);
    EXPECT_EQ(parseLength("-4"), -4);
    EXPECT_EQ(parseLength("+4"), 4);
    EXPECT_EQ(parseLength(" 4"), 4);
    EXPECT_EQ(parseLength("010"), 10);
    EXPECT_EQ(parseLength("2147483647"), highestCount);
    EXPECT_EQ(parseLength("-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST_F(RegisterEditChecks, LengthBeyond32BitsCountsAsTheLongestOrShortest)
{
    for (const char* text : {"2147483648", "99999999999", "+99999999999", " 00099999999999999999999999"})
    {
        EXPECT_EQ(parseLength(text), highestCount) << text;
        EXPECT_EQ(checkSpace(text, {1, registersPerSpace}), SpaceCheck::TooLong) << text;
    }
    for (const char* text : {"-2147483649", "-99999999999"})
    {
        EXPECT_EQ(parseLength(text), std::numeric_limits<std::int32_t>::min()) << text;
        EXPECT_EQ(confirmEdit("TAG", text), EditConfirmation::NoLength) << text;
    }
}

TEST_F(RegisterEditChecks, LengthInPartOfATextEndsWithThatPart)
{
    EXPECT_EQ(parseLength(std::string_view("1234").substr(1, 2)), 23);
}

TEST_F(RegisterEditChecks, AnythingElseDoesNotParseAsLength)
{
    for (const char* text : {"", " ", "-", "+", "3x", "3 ", "x3", "+-3", "--3", "0x10", "2.5", "99999999999x"})
        EXPECT_EQ(parseLength(text), std::nullopt) << text;
}

TEST_F(RegisterEditChecks, LengthThatIsNoNumberCountsAsOneForTheSpaceAndAsNoneOnConfirmation)
{
    for (const char* text : {"", "3x", "text", "4 "})
    {
        EXPECT_EQ(checkSpace(text, {1, 2}), SpaceCheck::Fits) << text;
        EXPECT_EQ(checkSpace(text, {0, 1}), SpaceCheck::FitsByMoving) << text;
        EXPECT_EQ(confirmEdit("TAG", text), EditConfirmation::NoLength) << text;
    }
}

TEST_F(RegisterEditChecks, EmptyTagnameCancelsWhateverTheLength)
{
    EXPECT_EQ(confirmEdit("", "2"), EditConfirmation::Cancel);
    EXPECT_EQ(confirmEdit("", "0"), EditConfirmation::Cancel);
    EXPECT_EQ(confirmEdit(" ", "2"), EditConfirmation::Apply);
}

TEST_F(RegisterEditChecks, LengthBelowOneIsRefused)
{
    EXPECT_EQ(confirmEdit("TAG", "0"), EditConfirmation::NoLength);
    EXPECT_EQ(confirmEdit("TAG", "-3"), EditConfirmation::NoLength);
    EXPECT_EQ(confirmEdit("TAG", "1"), EditConfirmation::Apply);
}

TEST_F(RegisterEditChecks, FieldsFollowTheType)
{
    EXPECT_EQ(visibilityFor("INT16"), (FieldVisibility{false, false, true, true, false, false}));
    EXPECT_EQ(visibilityFor("INT32"), (FieldVisibility{false, false, true, true, true, false}));
    EXPECT_EQ(visibilityFor("FLOAT"), (FieldVisibility{false, false, true, true, true, false}));
    EXPECT_EQ(visibilityFor("STRING"), (FieldVisibility{true, true, false, false, false, false}));
}

TEST_F(RegisterEditChecks, DoubleLeavesTheLengthFieldAsItIs)
{
    EXPECT_EQ(visibilityFor("DOUBLE"), (FieldVisibility{false, std::nullopt, true, true, true, true}));
}

TEST_F(RegisterEditChecks, TextThatNamesNoTypeLeavesEveryFieldAsItIs)
{
    for (const char* text : {"", "int16", "INT", "UNKOWN", "STRING "})
        EXPECT_EQ(visibilityFor(text), std::nullopt) << text;
}
