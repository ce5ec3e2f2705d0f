#pragma once

#include "map/RegisterMap.h"

#include <string>
#include <string_view>
#include <vector>

/// The text beside the grid that names a view mode; "NONE" for a value outside the three.
std::string_view viewModeLabel(ViewMode mode);

/// The view mode that the toggle goes to: ALL, COMPRESSED, EXPANDED, and round again.
ViewMode nextViewMode(ViewMode mode);

/// Addresses of the rows that a view mode shows, ascending: 65,536 in ALL, used slots in EXPANDED, heads of used
/// slots in COMPRESSED, none for a value outside the three.
std::vector<int> shownAddresses(const RegisterSlots& slots, ViewMode mode);

/// The status line's text for a number of error marks.
std::string statusText(int errorCount);
