#pragma once

#include <wx/gdicmn.h>

#include <vector>

class wxWindow;

/// What a user sees of a window: its colours as they are on the screen.
class ScreenPicture
{
public:
    /// Takes the picture of a part of a window that is shown.
    /// @param part  pixels inside the window
    ScreenPicture(const wxWindow& window, const wxRect& part);

    /// The smallest rectangle around everything that is not of the ground's colour, the one that most pixels have.
    wxRect inked() const;

    /// The contrast of the pixel that stands out most from the ground, from 1 (none) to 21 (black on white), as web
    /// pages are judged by.
    double contrast() const;

private:
    /// A colour, eight bits each for red, green and blue.
    using Pixel = unsigned;

    Pixel ground() const;

    int width;
    int height;
    std::vector<Pixel> pixels; ///< line by line
};
