#pragma once

#include <wx/gdicmn.h>

#include <vector>

class wxWindow;

/// What a user sees of a window: its colours as they are on the screen.
class ScreenPicture
{
public:
    /// Takes the picture of a window that is shown, its border included.
    explicit ScreenPicture(const wxWindow& window);

    /// Takes the picture of a part of a window that is shown.
    /// @param part  pixels inside the window
    ScreenPicture(const wxWindow& window, const wxRect& part);

    /// The smallest rectangle around everything that is not of the ground's colour, the one that most pixels have.
    wxRect inked() const;

    /// The contrast of the pixel that stands out most from the ground.
    double contrastToGround() const;

    /// How many pixels have at least that contrast to the one in the top left corner.
    int pixelsApartFromCorner(double least) const;

    /// How many pixels have at least that contrast to those at the same places of a picture of the same size.
    int pixelsApartFrom(const ScreenPicture& other, double least) const;

    /// The length of its edges together, in pixels.
    int circumference() const { return 2 * (width + height); }

private:
    explicit ScreenPicture(const wxRect& place);

    /// A colour, eight bits each for red, green and blue.
    using Pixel = unsigned;

    Pixel ground() const;

    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels; ///< line by line
};
