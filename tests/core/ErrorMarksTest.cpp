#include "map/ErrorMarks.h"

#include <gtest/gtest.h>

namespace
{

RegisterEntry marked(bool used, int tagIndex, bool typeValid, bool writeValid)
{
    RegisterEntry slot;
    slot.used = used;
    slot.tagIndex = tagIndex;
    slot.typeValid = typeValid;
    slot.writeValid = writeValid;
    return slot;
}

} // namespace

TEST(ErrorMarks, EachMarkCountsByItself)
{
    EXPECT_EQ(errorMarks(marked(true, 0, true, true)), 0);
    EXPECT_EQ(errorMarks(marked(true, -1, true, true)), 1);
    EXPECT_EQ(errorMarks(marked(true, 5, false, true)), 1);
    EXPECT_EQ(errorMarks(marked(true, 5, true, false)), 1);
    EXPECT_EQ(errorMarks(marked(true, -1, false, true)), 2);
    EXPECT_EQ(errorMarks(marked(true, -1, false, false)), 3);
}

TEST(ErrorMarks, AnyMarkIsAnError)
{
    EXPECT_FALSE(hasError(marked(true, 65'535, true, true)));
    EXPECT_TRUE(hasError(marked(true, -1, true, true)));
    EXPECT_TRUE(hasError(marked(true, 0, false, true)));
    EXPECT_TRUE(hasError(marked(true, 0, true, false)));
}

TEST(ErrorMarks, UnusedSlotHasNone)
{
    EXPECT_EQ(errorMarks(marked(false, -1, false, false)), 0);
    EXPECT_FALSE(hasError(marked(false, -1, false, false)));
}
