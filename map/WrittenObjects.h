#pragma once

#include "map/RegisterMap.h"

#include <string>

/// What the definition file and both exports have in common: one line for each object, written at its head.

/// True for the slot that a file has a line for. A used slot without a head (an object of another line overlaps it, or
/// begins before the space) is shown, but no file can say it.
constexpr bool isWritten(const RegisterEntry& slot)
{
    return slot.used && isHead(slot);
}

/// Makes room for the lines of all objects at once, so that the text of a full map is never copied while it grows.
///
/// A single request for more memory than there is fails before any of it is used, whereas a text that grows bit by
/// bit may have the system end the program.
/// @throws std::bad_alloc
void reserveLines(std::string& text, const RegisterMap& map);
