#pragma once

#include <wx/string.h>

#include <functional>

class wxGrid;

/// Lets a grid without rows show one grey line in their place. The line says why the grid is empty or what to do.
/// @param text  asked for whenever the grid is painted empty
void showWhileEmpty(wxGrid& grid, std::function<wxString()> text);
