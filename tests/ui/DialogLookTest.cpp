// What is seen of the controls on the dark background, measured on the screen.

#include "tests/ui/EditorUnderTest.h"
#include "tests/ui/ScreenPicture.h"
#include "tests/ui/UiTest.h"
#include "ui/SettingsDialog.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/textctrl.h>

namespace
{

/// The least contrast at which a mark counts as plainly visible.
constexpr double plain = 3.0;

/// How many pixels of a control differ plainly from those of a picture of the same size.
int plainDifferences(const ScreenPicture& before, const wxWindow& control)
{
    return ScreenPicture(control).pixelsApartFrom(before, plain);
}

/// Expects that the next press of the Tab key draws a ring around a control.
void expectRingAfterTab(const wxWindow& control)
{
    const ScreenPicture before(control);
    pressKey(WXK_TAB);
    ASSERT_TRUE(waitUntil([&] { return control.HasFocus(); }));
    // A ring two pixels wide, without its corners.
    const int ring = before.circumference();
    EXPECT_TRUE(waitUntil([&] { return plainDifferences(before, control) >= ring; }))
        << control.GetLabel() << ": " << plainDifferences(before, control) << " of " << ring << " pixels";
}

} // namespace

TEST(DialogLook, FocusedBoxesAndButtonsWearAPlainRing)
{
    EditorUnderTest editor(DataType::Int16);
    editor.explore(
        [&]
        {
            editor.typeType("FLOAT");
            for (const wxWindow* const control :
                 {static_cast<wxWindow*>(editor.writeBox), static_cast<wxWindow*>(editor.swapBytesBox),
                  static_cast<wxWindow*>(editor.swapWordsBox), static_cast<wxWindow*>(editor.byteSwapHelpButton)})
                expectRingAfterTab(*control);
            pressKey(WXK_TAB);
            ASSERT_TRUE(waitUntil([&] { return editor.descriptionField->HasFocus(); }));
            expectRingAfterTab(*editor.okButton);
            expectRingAfterTab(*editor.cancelButton);
        });
}

TEST(DialogLook, TheRingIsThereBeforeTheFirstKey)
{
    SettingsDialog dialog(nullptr);
    runModal(dialog,
             [&]
             {
                 const auto ringPixels = [&]
                 { return plainDifferences(ScreenPicture(*dialog.floatSwapBytes), *dialog.floatSwapWords); };
                 EXPECT_TRUE(waitUntil([&] { return ringPixels() > 20; })) << ringPixels();
                 pressKey(WXK_ESCAPE);
             });
}

TEST(DialogLook, EmptyCheckBoxesStandOutFromTheBackground)
{
    SettingsDialog dialog(nullptr);
    runModal(dialog,
             [&]
             {
                 // Four edges of more than ten pixels.
                 EXPECT_TRUE(
                     waitUntil([&] { return ScreenPicture(*dialog.intSwapBytes).pixelsApartFromCorner(plain) > 40; }));
                 pressKey(WXK_ESCAPE);
             });
}
