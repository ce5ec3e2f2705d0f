#pragma once

/// Shows the picture that explains the byte, word and long swaps, at the right edge of the primary display, until the
/// user closes it.
void showByteSwapHelp();
