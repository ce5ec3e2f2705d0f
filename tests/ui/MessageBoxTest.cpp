#include "ui/MessageBox.h"

#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/frame.h>

namespace
{

/// Shows a message box over a window that has the keyboard, and presses a key in it.
int answerWith(int key, long style)
{
    auto* const asking = new wxFrame(nullptr, wxID_ANY, "Asking");
    asking->Show();
    EXPECT_TRUE(waitUntil([&] { return asking->IsActive(); }));
    const MessageBoxKey answer(*asking, key);
    const int result = messageBox("Save changes ?", "Confirmation", style, asking);
    EXPECT_TRUE(answer.hasEnded());
    asking->Destroy();
    return result;
}

} // namespace

TEST(MessageBox, KeysPressTheButtons)
{
    EXPECT_EQ(answerWith(WXK_RETURN, wxOK), wxOK);
    EXPECT_EQ(answerWith(WXK_RETURN, wxYES_NO), wxYES);
    EXPECT_EQ(answerWith(WXK_RETURN, wxYES_NO | wxNO_DEFAULT), wxNO);
}

TEST(MessageBox, EscIsNeitherYesNorNo)
{
    EXPECT_EQ(answerWith(WXK_ESCAPE, wxYES_NO), wxCANCEL);
    EXPECT_EQ(answerWith(WXK_ESCAPE, wxOK | wxICON_ERROR), wxCANCEL);
}
