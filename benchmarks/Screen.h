#pragma once

#include <cstdint>
#include <vector>

/// Waits until the screen's server has done all that it was asked for.
void syncWithScreen();

/// The colours of a row of the screen as it is seen, left to right, each as 0xRRGGBB.
/// @param y  a row of the screen, 0 on top
std::vector<std::uint32_t> rowOfScreen(int y);

/// Rows of the screen.
int screenHeight();
