#include "tests/ui/AnsweredBox.h"

#include <gtest/gtest.h>

TEST(MessageBox, KeysPressTheButtons)
{
    EXPECT_EQ(answerWith(WXK_RETURN, wxOK), wxOK);
    EXPECT_EQ(answerWith(WXK_RETURN, wxYES_NO), wxYES);
    EXPECT_EQ(answerWith(WXK_RETURN, wxYES_NO | wxNO_DEFAULT), wxNO);
}
