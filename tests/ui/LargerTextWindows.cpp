// Windows has no size of texts alone: all of a window grows with the dots per inch of its screen, which a program
// cannot set. The tests that ask for larger texts look at the usual ones here.

#include "tests/ui/LargerText.h"

LargerText::LargerText(double) {}

LargerText::~LargerText() = default;
