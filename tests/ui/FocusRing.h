#pragma once

#include "tests/ui/ScreenPicture.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>
#include <wx/window.h>

/// The least contrast at which a mark counts as plainly visible.
inline constexpr double plain = 3.0;

/// How many pixels of a control differ plainly from those of a picture of the same size.
inline int plainDifferences(const ScreenPicture& before, const wxWindow& control)
{
    return ScreenPicture(control).pixelsApartFrom(before, plain);
}

/// Expects that the next press of the Tab key draws a ring around a control.
inline void expectRingAfterTab(wxWindow& control)
{
    control.Update(); // a control that was just shown may not be painted yet
    const ScreenPicture before(control);
    pressKey(WXK_TAB);
    ASSERT_TRUE(waitUntil([&] { return control.HasFocus(); }));
    // A ring two pixels wide, without its corners.
    const int ring = before.circumference();
    EXPECT_TRUE(waitUntil([&] { return plainDifferences(before, control) >= ring; }))
        << control.GetLabel() << ": " << plainDifferences(before, control) << " of " << ring << " pixels";
}
