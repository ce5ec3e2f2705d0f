// What is seen of the controls on the dark background, measured on the screen.

#include "tests/ui/EditorUnderTest.h"
#include "tests/ui/UiTest.h"
#include "ui/SettingsDialog.h"

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/bitmap.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/image.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cmath>

namespace
{

/// The least contrast at which a mark counts as plainly visible.
constexpr double plain = 3.0;

/// What the screen shows where a control is.
wxImage pictureOf(const wxWindow& control)
{
    const wxRect rect = control.GetScreenRect();
    // The toolkit's screen would be empty: it leaves out the windows.
    return wxBitmap(gdk_pixbuf_get_from_window(gdk_get_default_root_window(), rect.x, rect.y, rect.width, rect.height))
        .ConvertToImage();
}

double linear(unsigned char channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const wxImage& image, int x, int y)
{
    return 0.2126 * linear(image.GetRed(x, y)) + 0.7152 * linear(image.GetGreen(x, y)) +
           0.0722 * linear(image.GetBlue(x, y));
}

/// Contrast of two luminances, from 1 for none to 21 for black and white.
double contrast(double first, double second)
{
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/// How many pixels differ plainly between two pictures of the same size.
int plainDifferences(const wxImage& before, const wxImage& after)
{
    int count = 0;
    for (int y = 0; y < before.GetHeight(); ++y)
    {
        for (int x = 0; x < before.GetWidth(); ++x)
            count += contrast(luminance(before, x, y), luminance(after, x, y)) >= plain ? 1 : 0;
    }
    return count;
}

/// How many pixels of a picture stand out plainly from the one in its top left corner.
int plainPixels(const wxImage& image)
{
    const double background = luminance(image, 0, 0);
    int count = 0;
    for (int y = 0; y < image.GetHeight(); ++y)
    {
        for (int x = 0; x < image.GetWidth(); ++x)
            count += contrast(luminance(image, x, y), background) >= plain ? 1 : 0;
    }
    return count;
}

/// Expects that the next press of the Tab key draws a ring around a control.
void expectRingAfterTab(const wxWindow& control)
{
    const wxImage before = pictureOf(control);
    pressKey(WXK_TAB);
    ASSERT_TRUE(waitUntil([&] { return control.HasFocus(); }));
    // A ring two pixels wide, without its corners.
    const int ring = 2 * (before.GetWidth() + before.GetHeight());
    EXPECT_TRUE(waitUntil([&] { return plainDifferences(before, pictureOf(control)) >= ring; }))
        << control.GetLabel() << ": " << plainDifferences(before, pictureOf(control)) << " of " << ring << " pixels";
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
                 EXPECT_TRUE(waitUntil(
                     [&] {
                         return plainDifferences(pictureOf(*dialog.floatSwapBytes), pictureOf(*dialog.floatSwapWords)) >
                                20;
                     }));
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
                 EXPECT_TRUE(waitUntil([&] { return plainPixels(pictureOf(*dialog.intSwapBytes)) > 40; }));
                 pressKey(WXK_ESCAPE);
             });
}
