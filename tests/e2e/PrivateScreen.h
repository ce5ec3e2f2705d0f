#pragma once

#include "tests/e2e/Geometry.h"
#include "ui/Rgb.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What was seen on a part of the screen at one moment.
class Picture
{
public:
    Picture(int width, int height, std::vector<Rgb> pixels);

    int width() const { return pictureWidth; }
    int height() const { return pictureHeight; }
    Rgb at(int x, int y) const;

    /// Writes it as a portable pixmap.
    void save(const std::filesystem::path& path) const;

    friend bool operator==(const Picture&, const Picture&) = default;

private:
    int pictureWidth;
    int pictureHeight;
    std::vector<Rgb> pixels;
};

/// The keys that change what another key or a click means.
enum class Modifier
{
    Plain,
    Control,
    Shift
};

/// Screen, mouse and keyboard, used as a person uses them. Input arrives in the order in which it is made.
///
/// Places and parts of the screen are counted as the program counts them, in pixels of its own.
class PrivateScreen
{
public:
    /// Throws std::runtime_error without a screen, and on a screen that was not made for tests: nobody's mouse is
    /// to be taken away from him.
    /// @param scale  pixels of the screen, across and down, that the program paints for each pixel of its own; what it
    ///               is told as GDK_SCALE
    explicit PrivateScreen(int scale = 1);
    ~PrivateScreen();

    Rectangle bounds() const;
    Picture look(const Rectangle& part) const;

    /// A part with every pixel that the screen has.
    Picture photograph(const Rectangle& part) const;

    /// The window that has the keyboard and the frame around it, with every pixel that the screen has.
    Picture photographActiveWindow() const;

    /// Clicks once. Clicks one after the other fall a few pixels apart, so that two of them never make a double click.
    void click(Point place, Modifier modifier = Modifier::Plain);
    void doubleClick(Point place);
    void rightClick(Point place);

    /// Puts the mouse pointer where it neither hovers over anything nor brings up a tooltip.
    void parkPointer();

    /// Presses and releases a key.
    /// @param name  as the X server calls it: "space", "Escape", "KP_Add", "a", "equal", ...
    void pressKey(const std::string& name, Modifier modifier = Modifier::Plain);

    /// Types text of ASCII characters.
    void type(std::string_view text);

    /// The title of the window that has the keyboard.
    std::string activeTitle() const;

    /// Whether a window with that title is on the screen.
    bool showsTitle(const std::string& title) const;

    /// Ends the connection of the program that has a window of that title.
    /// @return false when there is no such window
    bool disconnectOwnerOf(const std::string& title);

    /// Asks the window manager to close a window, as its own close box and task bars do.
    /// @param title  the window's whole title
    /// @return false when there is no such window
    bool requestClose(const std::string& title);

private:
    struct Server;

    void move(Point place);
    void pressButton(unsigned number);
    void pressKeySymbol(unsigned long symbol, Modifier modifier);

    Picture take(const Rectangle& pixels, int step) const;

    std::unique_ptr<Server> server;
    int scale;
    bool clickAside = false;
};
