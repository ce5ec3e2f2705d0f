#pragma once

#include <wx/gdicmn.h>

#include <optional>

/// Where the list of offered names is while it is open. It is the desktop's window, of which the toolkit knows nothing.
/// @return its corner on the screen; nothing while no list is open
std::optional<wxPoint> openListCorner();
