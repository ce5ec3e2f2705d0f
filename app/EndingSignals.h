#pragma once

#include <functional>

/// Lets the program act before it is ended from outside: by a signal that asks it to end, or by a display that is gone.
///
/// The program then ends as it would have without this.
/// @param beforeEnd  called once at most, on the thread of the event loop, perhaps in the middle of a request to the
///                   display; it must not touch a window
void callBeforeEnding(std::function<void()> beforeEnd);
