#pragma once

#include <wx/string.h>

#include <functional>
#include <optional>

/// What the command line says; written once while it is parsed, read when the main window is built.
struct StartupValues
{
    wxString databasePath;   ///< tag database, a JSON file; empty when not given
    wxString definitionPath; ///< map definition file; empty when not given
    long swapFlags = 0;      ///< default byte order of float tags: bit 1 bytes, bit 2 words, bit 3 longs
};

/// Looks up the suite's installation.
/// @return its path as stored, empty when the key holds none; nothing when there is no installation
using InstallationLookup = std::function<std::optional<wxString>()>;
