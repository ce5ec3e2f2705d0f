// What the desktop draws by itself is seen on the dark grounds of the windows.

#include "tests/ui/ScreenPicture.h"
#include "tests/ui/SourceSide.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/bmpbuttn.h>
#include <wx/checkbox.h>
#include <wx/treectrl.h>

#include <algorithm>

namespace
{

/// Contrast from which a part of a control is told from its ground.
constexpr double visible = 3;

/// The contrast of a check box without its text to what is around it.
double contrastOfBox(const wxCheckBox& box)
{
    const int side = std::min(box.GetClientSize().GetWidth(), box.GetClientSize().GetHeight());
    const int around = box.FromDIP(4);
    return ScreenPicture(box, wxRect(-around, -around, around + side, side + 2 * around)).contrastToGround();
}

} // namespace

TEST(DarkLook, GroupCheckBoxIsSeenWhileItIsNotTicked)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    const wxCheckBox& box = *groupBox(editor, "SET");
    ASSERT_FALSE(box.IsChecked());
    EXPECT_TRUE(waitUntil([&] { return contrastOfBox(box) >= visible; })) << contrastOfBox(box);
}

TEST(DarkLook, PictureButtonsAreFlatOnTheirBars)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    for (const wxString& tooltip : {wxString("About"), wxString("Cut - ctrl x"), wxString("Show Status Registers")})
    {
        const wxBitmapButton& button = *editor.button(tooltip);
        // The bar's last pixels before the button, and the button's first ones.
        const wxRect edge(button.GetPosition() - wxPoint(2, 0), wxSize(4, button.GetSize().GetHeight()));
        const auto contrast = [&] { return ScreenPicture(*button.GetParent(), edge).contrastToGround(); };
        EXPECT_TRUE(waitUntil([&] { return contrast() < 1.01; })) << tooltip << ": " << contrast();
    }
}

TEST(DarkLook, FoldingSignsOfTheTreeAreSeen)
{
    const PlantFiles files("");
    const EditorWindow& editor = *openEditor(files.startup());
    wxRect label;
    ASSERT_TRUE(editor.sourceTree->GetBoundingRect(treeNode(editor, "Works"), label, true));
    const wxRect sign(0, label.y, label.x, label.height);
    const auto contrast = [&] { return ScreenPicture(*editor.sourceTree, sign).contrastToGround(); };
    EXPECT_TRUE(waitUntil([&] { return contrast() >= visible; })) << contrast();
    const ScreenPicture unfolded(*editor.sourceTree, sign);
    editor.sourceTree->Collapse(treeNode(editor, "Works"));
    EXPECT_TRUE(
        waitUntil([&] { return ScreenPicture(*editor.sourceTree, sign).pixelsApartFrom(unfolded, visible) > 0; }));
}
