#pragma once

#include <filesystem>

/// The user's own folder for what the program keeps from one run to the next, without being asked to.
///
/// `$XDG_STATE_HOME/tolvane`, or `~/.local/state/tolvane`; on Windows the local application data's `tolvane`.
/// @return empty when the system names no such place; the folder need not exist
std::filesystem::path stateFolder();
