// How fields and check boxes show that they have the keyboard. The other systems draw that by themselves, and Windows
// not before the first key, where its user has not set otherwise.

#include "tests/ui/EditorUnderTest.h"
#include "tests/ui/EditorWindow.h"
#include "tests/ui/FocusRing.h"
#include "tests/ui/ScreenPicture.h"
#include "tests/ui/UiTest.h"
#include "ui/SettingsDialog.h"

#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/textctrl.h>

namespace
{

/// The contrast of the left edge of a field, without its text and without its corners.
double contrastOfEdge(const wxTextCtrl& field)
{
    const wxSize size = field.GetClientSize();
    return ScreenPicture(field, wxRect(0, size.y / 3, 5, size.y / 3)).contrastToGround();
}

} // namespace

TEST(DarkLook, FilterThatHasTheKeyboardHasAPlainEdge)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    ASSERT_LT(contrastOfEdge(*editor.sourceFilter), plain);
    editor.sourceFilter->SetFocus();
    EXPECT_TRUE(waitUntil([&] { return contrastOfEdge(*editor.sourceFilter) >= plain; }))
        << contrastOfEdge(*editor.sourceFilter);
}

TEST(DialogLook, FocusedBoxesWearAPlainRing)
{
    EditorUnderTest editor(DataType::Int16);
    editor.explore(
        [&]
        {
            editor.typeType("FLOAT");
            expectRingAfterTab(*editor.writeBox);
            expectRingAfterTab(*editor.swapBytesBox);
            expectRingAfterTab(*editor.swapWordsBox);
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
