// What is seen of the controls on the dark background, measured on the screen.

#include "tests/ui/EditorUnderTest.h"
#include "tests/ui/FocusRing.h"
#include "tests/ui/ScreenPicture.h"
#include "tests/ui/UiTest.h"
#include "ui/SettingsDialog.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/textctrl.h>

TEST(DialogLook, FocusedButtonsWearAPlainRing)
{
    EditorUnderTest editor(DataType::Int16);
    editor.explore(
        [&]
        {
            editor.swapBytesBox->SetFocus();
            expectRingAfterTab(*editor.byteSwapHelpButton);
            editor.descriptionField->SetFocus();
            expectRingAfterTab(*editor.okButton);
            expectRingAfterTab(*editor.cancelButton);
        });
}

TEST(DialogLook, EmptyCheckBoxesStandOutFromTheBackground)
{
    SettingsDialog dialog(nullptr);
    runModal(dialog,
             [&]
             {
                 const wxCheckBox& box = *dialog.intSwapBytes;
                 const wxRect aroundIt = wxRect(box.GetSize()).Inflate(box.FromDIP(3));
                 // Four edges of more than ten pixels.
                 EXPECT_TRUE(waitUntil([&] { return ScreenPicture(box, aroundIt).pixelsApartFromCorner(plain) > 40; }));
                 pressKey(WXK_ESCAPE);
             });
}
