#include "map/RegisterSpace.h"

#include <gtest/gtest.h>

TEST(RegisterSpace, DisplayNamesFollowTheIndex)
{
    EXPECT_EQ(spaceDisplayName(0), "Coil");
    EXPECT_EQ(spaceDisplayName(1), "Input");
    EXPECT_EQ(spaceDisplayName(2), "Status");
    EXPECT_EQ(spaceDisplayName(3), "Holding");
}

TEST(RegisterSpace, IndexOutsideTheFourHasItsOwnDisplayName)
{
    EXPECT_EQ(spaceDisplayName(-1), "Unkown");
    EXPECT_EQ(spaceDisplayName(4), "Unkown");
    EXPECT_EQ(spaceDisplayName(-2147483647 - 1), "Unkown");
    EXPECT_EQ(spaceDisplayName(2147483647), "Unkown");
}

TEST(RegisterSpace, AllSpacesStandInIndexOrder)
{
    for (int index = 0; index < spaceCount; ++index)
        EXPECT_EQ(static_cast<int>(allSpaces[static_cast<std::size_t>(index)]), index);
}

TEST(RegisterSpace, KeywordsAreReadBack)
{
    EXPECT_EQ(spaceKeyword(RegisterSpace::Coil), "COIL");
    EXPECT_EQ(spaceKeyword(RegisterSpace::Input), "INPUT");
    EXPECT_EQ(spaceKeyword(RegisterSpace::Status), "STATUS");
    EXPECT_EQ(spaceKeyword(RegisterSpace::Holding), "HOLDING");
    for (const RegisterSpace space : allSpaces)
        EXPECT_EQ(spaceFromKeyword(spaceKeyword(space)), space);
}

TEST(RegisterSpace, KeywordsAreReadExactly)
{
    for (const char* other : {"", "holding", "Holding", " HOLDING", "HOLDING ", "HOLDINGS", "HOLD", "Unkown", "3"})
        EXPECT_EQ(spaceFromKeyword(other), std::nullopt) << other;
}
