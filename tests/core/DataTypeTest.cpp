#include "map/DataType.h"

#include <gtest/gtest.h>

TEST(DataType, NamesAreReadBackExactly)
{
    for (const DataType type : allDataTypes)
        EXPECT_EQ(typeFromName(typeName(type)), type);
}

TEST(DataType, AnyOtherNameIsInt16)
{
    EXPECT_EQ(typeFromName("int32"), DataType::Int16);
    EXPECT_EQ(typeFromName("BOOL"), DataType::Int16);
    EXPECT_EQ(typeFromName(" FLOAT"), DataType::Int16);
    EXPECT_EQ(typeFromName(""), DataType::Int16);
}

TEST(DataType, CodeOutsideTheFiveHasItsOwnName)
{
    EXPECT_EQ(typeName(static_cast<DataType>(5)), "UNKOWN");
    EXPECT_EQ(typeName(static_cast<DataType>(255)), "UNKOWN");
}

TEST(DataType, FixedTypesIgnoreTheLengthText)
{
    EXPECT_EQ(registerCountFor("INT16", "9"), 1);
    EXPECT_EQ(registerCountFor("INT32", "9"), 2);
    EXPECT_EQ(registerCountFor("FLOAT", "9"), 2);
    EXPECT_EQ(registerCountFor("DOUBLE", "9"), 4);
    EXPECT_EQ(registerCountFor("int16", "9"), 1);
    EXPECT_EQ(registerCountFor("BOOL", "9"), 1);
}

TEST(DataType, StringTakesItsLengthFromTheLeadingDigits)
{
    EXPECT_EQ(registerCountFor("STRING", "12"), 12);
    EXPECT_EQ(registerCountFor("STRING", "  3x"), 3);
    EXPECT_EQ(registerCountFor("STRING", "-4"), -4);
    EXPECT_EQ(registerCountFor("STRING", "text"), 0);
    EXPECT_EQ(registerCountFor("STRING", "99999999999"), 2147483647);
}

TEST(DataType, TwoCharactersShareARegister)
{
    EXPECT_EQ(registersForString(0), 0U);
    EXPECT_EQ(registersForString(5), 3U);
    EXPECT_EQ(registersForString(6), 3U);
    EXPECT_EQ(registersForString(255), 128U);
}
