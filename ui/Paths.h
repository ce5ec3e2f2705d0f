#pragma once

#include "text/EscapedBytes.h"
#include "ui/ToolkitText.h"

#include <wx/string.h>

#include <filesystem>

/// A path as the command line or a dialog gives it, in the form that files are opened with.
/// Where paths are bytes these are the bytes that the system gave, whatever the locale makes of them.
inline std::filesystem::path toPath(const wxString& path)
{
#ifdef __WINDOWS__
    return path.ToStdWstring();
#else
    return unescapeBytes(modelText(path));
#endif
}
