#include "ui/SettingsDialog.h"

#include "tests/ui/LargerText.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/stattext.h>

namespace
{

constexpr DefaultByteOrder allSwapped{true, true, true, true, true, true};

void cancelDialog(const std::function<void()>& expectations, SettingsDialog& dialog)
{
    runModal(dialog,
             [&]
             {
                 expectations();
                 pressKey(WXK_ESCAPE);
             });
}

} // namespace

TEST(SettingsDialog, ShowsOnlyTheSwapsThatMadeObjectsCanCarry)
{
    SettingsDialog dialog(nullptr);
    EXPECT_EQ(dialog.GetTitle(), "Settings");
    cancelDialog(
        [&]
        {
            for (const wxCheckBox* const shown : {dialog.floatSwapBytes, dialog.floatSwapWords, dialog.intSwapBytes})
                EXPECT_TRUE(shown->IsShownOnScreen());
            for (const wxCheckBox* const hidden : {dialog.floatSwapLongs, dialog.intSwapWords, dialog.intSwapLongs})
                EXPECT_FALSE(hidden->IsShownOnScreen());
            EXPECT_FALSE(dialog.longsHeading->IsShownOnScreen());
        },
        dialog);
}

TEST(SettingsDialog, SwapFlagsOfTheCommandLineTickTheFloatBoxes)
{
    SettingsDialog dialog(nullptr);
    dialog.showByteOrder(DefaultByteOrder::fromSwapFlags(14));
    EXPECT_TRUE(dialog.floatSwapBytes->IsChecked());
    EXPECT_TRUE(dialog.floatSwapWords->IsChecked());
    EXPECT_FALSE(dialog.intSwapBytes->IsChecked());
}

TEST(SettingsDialog, EveryFlagHasItsOwnBox)
{
    for (bool DefaultByteOrder::*const flag :
         {&DefaultByteOrder::intSwapBytes, &DefaultByteOrder::intSwapWords, &DefaultByteOrder::intSwapLongs,
          &DefaultByteOrder::floatSwapBytes, &DefaultByteOrder::floatSwapWords, &DefaultByteOrder::floatSwapLongs})
    {
        DefaultByteOrder order;
        order.*flag = true;
        SettingsDialog dialog(nullptr);
        dialog.showByteOrder(order);
        EXPECT_EQ(dialog.byteOrder(), order);
        const int ticked = dialog.floatSwapBytes->IsChecked() + dialog.floatSwapWords->IsChecked() +
                           dialog.floatSwapLongs->IsChecked() + dialog.intSwapBytes->IsChecked() +
                           dialog.intSwapWords->IsChecked() + dialog.intSwapLongs->IsChecked();
        EXPECT_EQ(ticked, 1);
    }
}

TEST(SettingsDialog, HiddenFlagsPassThroughUnchanged)
{
    SettingsDialog dialog(nullptr);
    dialog.showByteOrder(allSwapped);
    EXPECT_EQ(runModal(dialog, [&] { clickOn(*dialog.okButton); }), wxID_OK);
    EXPECT_EQ(dialog.byteOrder(), allSwapped);
}

TEST(SettingsDialog, ClicksChangeTheVisibleFlags)
{
    SettingsDialog dialog(nullptr);
    dialog.showByteOrder(DefaultByteOrder::fromSwapFlags(2));
    const int result = runModal(dialog,
                                [&]
                                {
                                    clickOn(*dialog.floatSwapBytes);
                                    EXPECT_TRUE(waitUntil([&] { return !dialog.floatSwapBytes->IsChecked(); }));
                                    clickOn(*dialog.floatSwapWords);
                                    EXPECT_TRUE(waitUntil([&] { return dialog.floatSwapWords->IsChecked(); }));
                                    clickOn(*dialog.intSwapBytes);
                                    EXPECT_TRUE(waitUntil([&] { return dialog.intSwapBytes->IsChecked(); }));
                                    clickOn(*dialog.okButton);
                                });
    EXPECT_EQ(result, wxID_OK);
    EXPECT_EQ(dialog.byteOrder(), (DefaultByteOrder{.intSwapBytes = true, .floatSwapWords = true}));
}

TEST(SettingsDialog, SpaceTicksTheFirstBoxAndEnterConfirms)
{
    SettingsDialog dialog(nullptr);
    const int result = runModal(dialog,
                                [&]
                                {
                                    pressKey(WXK_SPACE);
                                    EXPECT_TRUE(waitUntil([&] { return dialog.floatSwapBytes->IsChecked(); }));
                                    pressKey(WXK_RETURN);
                                });
    EXPECT_EQ(result, wxID_OK);
    EXPECT_EQ(dialog.byteOrder(), DefaultByteOrder{.floatSwapBytes = true});
}

TEST(SettingsDialog, CancelButtonEscapeAndCloseBoxCancel)
{
    SettingsDialog first(nullptr);
    EXPECT_EQ(runModal(first, [&] { clickOn(*first.cancelButton); }), wxID_CANCEL);
    SettingsDialog second(nullptr);
    EXPECT_EQ(runModal(second, [] { pressKey(WXK_ESCAPE); }), wxID_CANCEL);
    SettingsDialog third(nullptr);
    EXPECT_EQ(runModal(third, [&] { pressCloseBox(third); }), wxID_CANCEL);
}

TEST(SettingsDialog, HelpButtonShowsThePictureAndComesBack)
{
    SettingsDialog dialog(nullptr);
    const int result = runModal(dialog,
                                [&]
                                {
                                    const DialogScript help(
                                        [](wxDialog& picture)
                                        {
                                            EXPECT_EQ(picture.GetTitle(), "Help");
                                            pressKey(WXK_ESCAPE);
                                        });
                                    clickOn(*dialog.byteSwapHelpButton);
                                    EXPECT_TRUE(waitUntil([&] { return help.hasEnded(); }));
                                    clickOn(*dialog.okButton);
                                });
    EXPECT_EQ(result, wxID_OK);
}

TEST(SettingsDialog, TabGoesThroughTheVisibleControlsInReadingOrder)
{
    SettingsDialog dialog(nullptr);
    cancelDialog(
        [&]
        {
            expectTabReaches({dialog.floatSwapWords, dialog.intSwapBytes, dialog.okButton, dialog.cancelButton,
                              dialog.byteSwapHelpButton, dialog.floatSwapBytes});
            expectTabReaches({dialog.byteSwapHelpButton, dialog.cancelButton, dialog.okButton, dialog.intSwapBytes,
                              dialog.floatSwapWords, dialog.floatSwapBytes},
                             wxMOD_SHIFT);
        },
        dialog);
}

TEST(SettingsDialog, NothingIsCutOffHoweverLargeTheTextIs)
{
    for (const double factor : {1.0, 1.25, 1.5, 2.0})
    {
        const LargerText larger(factor);
        SettingsDialog dialog(nullptr);
        cancelDialog([&] { expectCleanLayout(dialog); }, dialog);
    }
}
