#include "app/EndingSignals.h"

void callBeforeEnding(std::function<void()>)
{
    // This system ends a program through its window: the toolkit then leaves the event loop in the orderly way.
}
