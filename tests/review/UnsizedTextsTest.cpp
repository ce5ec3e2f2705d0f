#include "review/UnsizedTexts.h"

#include "tests/review/ReviewedText.h"

#include <gtest/gtest.h>

namespace
{

UnsizedTexts unsizedTextsOf(const std::vector<std::string>& lines)
{
    RegisterMap map;
    UnsizedTexts unsized;
    readDefinition(fileOf(lines), map, smallDatabase(), [&](const DefinitionFileLine& line) { unsized.take(line); });
    return unsized;
}

const std::string unsizedText = "HOLDING,100,NONE,STRING,UNKNOWN,Words";

} // namespace

TEST(UnsizedTexts, HoldATextWhoseLineGivesNoLengthAndWhoseTagIsNotKnown)
{
    const UnsizedTexts unsized = unsizedTextsOf({unsizedText});
    EXPECT_TRUE(unsized.contains(RegisterSpace::Holding, 100));
    EXPECT_FALSE(unsized.contains(RegisterSpace::Holding, 101));
    EXPECT_FALSE(unsized.contains(RegisterSpace::Input, 100));
    EXPECT_FALSE(unsized.isEmpty());
}

TEST(UnsizedTexts, HoldNoneWhoseLengthIsGiven)
{
    EXPECT_TRUE(
        unsizedTextsOf({"HOLDING,100,NONE,STRING,UNKNOWN,,4", "HOLDING,110,NONE,FLOAT,UNKNOWN,Words"}).isEmpty());
}

TEST(UnsizedTexts, GoByTheLastLineThatBeginsAtAnAddress)
{
    EXPECT_TRUE(unsizedTextsOf({unsizedText, "HOLDING,100,NONE,FLOAT,SPEED,Words"}).isEmpty());
    EXPECT_FALSE(unsizedTextsOf({"HOLDING,100,NONE,FLOAT,SPEED,Words", unsizedText}).isEmpty());
}

TEST(UnsizedTexts, PassOverLinesWithoutAnObjectInTheSpace)
{
    EXPECT_TRUE(unsizedTextsOf(
                    {"HOLDING,65536,NONE,STRING,UNKNOWN,Words", "HOLDING,-1,NONE,STRING,UNKNOWN,Words", "", "HOLDING"})
                    .isEmpty());
    EXPECT_FALSE(unsizedTextsOf({unsizedText, "HOLDING,100,NONE"}).isEmpty());
}
