#pragma once

/// A place on the screen, in pixels from its upper left corner.
struct Point
{
    int x = 0;
    int y = 0;
};

/// A part of the screen, in pixels.
struct Rectangle
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    /// The place in the middle.
    Point middle() const { return {x + width / 2, y + height / 2}; }

    friend bool operator==(const Rectangle&, const Rectangle&) = default;
};
