#pragma once

#include "ui/Rgb.h"

#include <wx/colour.h>
#include <wx/font.h>

enum class MapTone;
enum class TagTone;

/// The one dark look of all windows: their colours and fonts, named by what they are for.
namespace theme
{

inline constexpr Rgb frameText{178, 178, 178};
inline constexpr Rgb frameBackground{31, 31, 31};
inline constexpr Rgb headerBackground{51, 51, 51};
inline constexpr Rgb title{255, 128, 0};
inline constexpr Rgb contentText{255, 255, 255};
inline constexpr Rgb contentBackground{32, 32, 32};
inline constexpr Rgb filterText{208, 208, 208};
inline constexpr Rgb columnHeaderText{240, 240, 240};
inline constexpr Rgb columnHeaderBackground{0, 64, 128};
inline constexpr Rgb cellText{192, 192, 192};
inline constexpr Rgb hint{150, 150, 150};
inline constexpr Rgb selection{51, 153, 255};
inline constexpr Rgb selectionText{0, 0, 0}; ///< light texts could hardly be read on this blue
inline constexpr Rgb groupFlag{255, 217, 0};
inline constexpr Rgb groupDescription{224, 224, 224};
inline constexpr Rgb statusStart{255, 255, 255};
inline constexpr Rgb statusGood{176, 176, 176};
inline constexpr Rgb statusWarning{255, 255, 0};
inline constexpr Rgb dialogText{176, 176, 176};
inline constexpr Rgb dialogBackground{48, 48, 48};
inline constexpr Rgb entryText{255, 255, 255};
inline constexpr Rgb entryBackground{64, 64, 64};
inline constexpr Rgb buttonText{255, 255, 255};
inline constexpr Rgb helpButtonText{0, 0, 0};
inline constexpr Rgb helpButtonBackground{255, 255, 0};

/// The toolkit's form of a colour.
inline wxColour colour(Rgb rgb)
{
    return {rgb.red, rgb.green, rgb.blue};
}

/// Background of the buttons that end a dialog: the desktop's colour of selected things.
wxColour buttonBackground();

/// What a cell of the map grid is written in.
Rgb cellColour(MapTone tone);

/// What a cell of the tag grid is written in.
Rgb cellColour(TagTone tone);

/// "Segoe UI", or the desktop's own sans face where that is not installed.
/// @param points  size in points
wxFont regular(int points);

/// "Segoe UI Semibold" at weight 600, or the desktop's own sans face at that weight.
/// @param points  size in points
wxFont semibold(int points);

/// The font of the cells of a grid.
wxFont cell();

/// The font of the titles above the columns of a grid.
wxFont columnTitle();

/// "Arial" at 10 points, the font of whatever has none of its own in a dialog, or the desktop's own sans face.
wxFont dialog();

/// "Arial Rounded MT Bold" at 10 points, or the desktop's own sans face.
wxFont helpButton();

} // namespace theme
