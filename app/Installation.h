#pragma once

#include <wx/string.h>

#include <optional>

/// Looks up where the suite is installed: on Windows in the registry under HKEY_CURRENT_USER, elsewhere in the key
/// file "BELTHORNE LTD/Varnok Software Suite.conf" under $XDG_CONFIG_HOME, then under each of $XDG_CONFIG_DIRS.
/// @return the value "Path", empty when the key has none; nothing when there is no key
std::optional<wxString> findInstallation();
