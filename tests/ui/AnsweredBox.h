#pragma once

#include "tests/ui/UiTest.h"
#include "ui/MessageBox.h"

#include <gtest/gtest.h>
#include <wx/frame.h>

/// Shows a message box over a window that has the keyboard, and presses a key in it.
/// @param style  the toolkit's style of message boxes
/// @return what the box answers
inline int answerWith(int key, long style)
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
