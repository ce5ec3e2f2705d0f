#pragma once

#include <wx/string.h>

#include <filesystem>

/// A path as the command line or a dialog gives it, in the form that files are opened with.
/// Its bytes are those of the file system, whatever encoding they are in.
inline std::filesystem::path toPath(const wxString& path)
{
#ifdef __WINDOWS__
    return path.ToStdWstring();
#else
    return static_cast<const char*>(path.fn_str());
#endif
}
