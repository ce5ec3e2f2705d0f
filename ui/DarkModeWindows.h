#pragma once

class wxWindow;

/// Scroll bars, menus and captions in their dark variant, which Windows has for programs of its own and offers others
/// only in part.
namespace darkMode
{

/// Asks for dark menus and lets windows ask for the rest; before the first window.
/// Does nothing on a system that has no dark variant.
void prefer();

/// Gives a window and all controls in it dark scroll bars, and a window with a caption a dark one.
/// To be called once the controls are there.
void dress(wxWindow& window);

} // namespace darkMode
