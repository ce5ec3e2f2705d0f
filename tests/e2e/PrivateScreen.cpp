#include "tests/e2e/PrivateScreen.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace
{

constexpr unsigned leftButton = 1;
constexpr unsigned rightButton = 3;

/// The property that names all windows which the window manager looks after.
constexpr const char* clientList = "_NET_CLIENT_LIST";

/// The property that names the window which has the keyboard.
constexpr const char* activeWindow = "_NET_ACTIVE_WINDOW";

/// Pixels from the place of a click to the place of the next; the toolkit takes up to 5 for a hand that trembles.
constexpr int clickDistance = 8;

/// Frees what the X library has handed out.
struct Free
{
    void operator()(void* data) const { XFree(data); }
};

/// A window that closes while it is being asked about is no error of the test's.
int ignoreError(Display* /*display*/, XErrorEvent* /*error*/)
{
    return 0;
}

/// The numbers in a property of a window.
/// @param wantedType  what they stand for; a property of any other type has none
std::vector<unsigned long> numbersIn(Display* display, Window window, const char* property, Atom wantedType)
{
    const Atom name = XInternAtom(display, property, False);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    constexpr long most = 1000;
    XGetWindowProperty(display, window, name, 0, most, False, wantedType, &type, &format, &count, &rest, &data);
    const std::unique_ptr<unsigned char, Free> owner(data);
    if (type != wantedType)
        return {};
    const auto* const numbers = reinterpret_cast<const unsigned long*>(data);
    return {numbers, numbers + count};
}

/// The windows that the window manager names in a property of the root window.
std::vector<Window> windowsIn(Display* display, const char* property)
{
    return numbersIn(display, DefaultRootWindow(display), property, XA_WINDOW);
}

/// Where a window is, in pixels of the screen, with the frame that the window manager has put around it.
Rectangle framedBounds(Display* display, Window window)
{
    XWindowAttributes attributes{};
    int x = 0;
    int y = 0;
    Window child = None;
    XGetWindowAttributes(display, window, &attributes);
    XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &x, &y, &child);
    Rectangle bounds{x, y, attributes.width, attributes.height};
    const std::vector<unsigned long> frame = numbersIn(display, window, "_NET_FRAME_EXTENTS", XA_CARDINAL);
    if (frame.size() == 4)
    {
        const auto side = [&](std::size_t number) { return static_cast<int>(frame[number]); };
        bounds = {x - side(0), y - side(2), bounds.width + side(0) + side(1), bounds.height + side(2) + side(3)};
    }
    return bounds;
}

std::string titleOf(Display* display, Window window)
{
    char* title = nullptr;
    XFetchName(display, window, &title);
    const std::unique_ptr<char, Free> owner(title);
    return title == nullptr ? std::string() : std::string(title);
}

/// Holds a modifier key down for as long as it lives.
class HeldModifier
{
public:
    HeldModifier(Display* itsDisplay, Modifier modifier) : display(itsDisplay)
    {
        if (modifier != Modifier::Plain)
            key = XKeysymToKeycode(display, modifier == Modifier::Control ? XK_Control_L : XK_Shift_L);
        if (key != 0)
            XTestFakeKeyEvent(display, key, True, CurrentTime);
    }
    HeldModifier(const HeldModifier&) = delete;
    HeldModifier& operator=(const HeldModifier&) = delete;
    ~HeldModifier()
    {
        if (key != 0)
            XTestFakeKeyEvent(display, key, False, CurrentTime);
        XSync(display, False);
    }

private:
    Display* display;
    unsigned key = 0;
};

} // namespace

Picture::Picture(int width, int height, std::vector<Rgb> itsPixels)
    : pictureWidth(width), pictureHeight(height), pixels(std::move(itsPixels))
{
}

Rgb Picture::at(int x, int y) const
{
    return pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(pictureWidth) +
                     static_cast<std::size_t>(x));
}

void Picture::save(const std::filesystem::path& path) const
{
    std::ofstream file(path, std::ios::binary);
    file << "P6\n" << pictureWidth << ' ' << pictureHeight << "\n255\n";
    for (const Rgb& pixel : pixels)
        file << static_cast<char>(pixel.red) << static_cast<char>(pixel.green) << static_cast<char>(pixel.blue);
}

/// The connection to the X server.
struct PrivateScreen::Server
{
    std::unique_ptr<Display, int (*)(Display*)> display{XOpenDisplay(nullptr), XCloseDisplay};

    Display* get() const { return display.get(); }
};

PrivateScreen::PrivateScreen(int itsScale) : server(std::make_unique<Server>()), scale(itsScale)
{
    if (std::getenv("PRIVATE_TEST_DISPLAY") == nullptr)
        throw std::runtime_error("not a screen for tests: run this through tests/with-display");
    if (server->get() == nullptr)
        throw std::runtime_error("no screen");
    XSetErrorHandler(ignoreError);
}

PrivateScreen::~PrivateScreen() = default;

Rectangle PrivateScreen::bounds() const
{
    return {0, 0, DisplayWidth(server->get(), DefaultScreen(server->get())) / scale,
            DisplayHeight(server->get(), DefaultScreen(server->get())) / scale};
}

Picture PrivateScreen::look(const Rectangle& part) const
{
    return take({part.x * scale, part.y * scale, part.width * scale, part.height * scale}, scale);
}

Picture PrivateScreen::photograph(const Rectangle& part) const
{
    return take({part.x * scale, part.y * scale, part.width * scale, part.height * scale}, 1);
}

Picture PrivateScreen::photographActiveWindow() const
{
    const std::vector<Window> active = windowsIn(server->get(), activeWindow);
    if (active.empty() || active.front() == None)
        throw std::runtime_error("no window has the keyboard");
    return take(framedBounds(server->get(), active.front()), 1);
}

/// @param step  how many pixels, across and down, one pixel of the picture stands for
Picture PrivateScreen::take(const Rectangle& part, int step) const
{
    const std::unique_ptr<XImage, int (*)(XImage*)> image(
        XGetImage(server->get(), DefaultRootWindow(server->get()), part.x, part.y, static_cast<unsigned>(part.width),
                  static_cast<unsigned>(part.height), AllPlanes, ZPixmap),
        [](XImage* taken) { return XDestroyImage(taken); });
    if (!image)
        throw std::runtime_error("that part is not on the screen");
    std::vector<Rgb> pixels;
    pixels.reserve(static_cast<std::size_t>(part.width / step) * static_cast<std::size_t>(part.height / step));
    for (int y = 0; y < part.height; y += step)
    {
        for (int x = 0; x < part.width; x += step)
        {
            const unsigned long pixel = XGetPixel(image.get(), x, y);
            pixels.push_back({static_cast<std::uint8_t>(pixel >> 16U), static_cast<std::uint8_t>(pixel >> 8U),
                              static_cast<std::uint8_t>(pixel)});
        }
    }
    return {part.width / step, part.height / step, std::move(pixels)};
}

void PrivateScreen::move(Point place)
{
    XTestFakeMotionEvent(server->get(), DefaultScreen(server->get()), place.x * scale, place.y * scale, CurrentTime);
}

void PrivateScreen::pressButton(unsigned number)
{
    XTestFakeButtonEvent(server->get(), number, True, CurrentTime);
    XTestFakeButtonEvent(server->get(), number, False, CurrentTime);
    XSync(server->get(), False);
}

void PrivateScreen::click(Point place, Modifier modifier)
{
    const HeldModifier held(server->get(), modifier);
    clickAside = !clickAside;
    move({place.x + (clickAside ? clickDistance / 2 : -clickDistance / 2), place.y});
    pressButton(leftButton);
}

void PrivateScreen::doubleClick(Point place)
{
    move(place);
    pressButton(leftButton);
    pressButton(leftButton);
}

void PrivateScreen::rightClick(Point place)
{
    move(place);
    pressButton(rightButton);
}

void PrivateScreen::parkPointer()
{
    const Rectangle all = bounds();
    move({all.width - 1, all.height - 1});
    XSync(server->get(), False);
}

void PrivateScreen::pressKeySymbol(unsigned long symbol, Modifier modifier)
{
    const HeldModifier held(server->get(), modifier);
    const KeyCode key = XKeysymToKeycode(server->get(), symbol);
    if (key == 0)
        throw std::runtime_error("no key on the keyboard gives that symbol");
    const bool shifted = XkbKeycodeToKeysym(server->get(), key, 0, 0) != symbol;
    const HeldModifier shift(server->get(), shifted ? Modifier::Shift : Modifier::Plain);
    XTestFakeKeyEvent(server->get(), key, True, CurrentTime);
    XTestFakeKeyEvent(server->get(), key, False, CurrentTime);
}

void PrivateScreen::pressKey(const std::string& name, Modifier modifier)
{
    pressKeySymbol(XStringToKeysym(name.c_str()), modifier);
}

void PrivateScreen::type(std::string_view text)
{
    // The key symbols of ASCII characters are their codes.
    for (const char character : text)
        pressKeySymbol(static_cast<unsigned char>(character), Modifier::Plain);
}

std::string PrivateScreen::activeTitle() const
{
    const std::vector<Window> active = windowsIn(server->get(), activeWindow);
    return active.empty() || active.front() == None ? std::string() : titleOf(server->get(), active.front());
}

bool PrivateScreen::showsTitle(const std::string& title) const
{
    const std::vector<Window> windows = windowsIn(server->get(), clientList);
    return std::any_of(windows.begin(), windows.end(),
                       [&](Window window) { return titleOf(server->get(), window) == title; });
}

bool PrivateScreen::disconnectOwnerOf(const std::string& title)
{
    for (const Window window : windowsIn(server->get(), clientList))
    {
        if (titleOf(server->get(), window) != title)
            continue;
        XKillClient(server->get(), window);
        XSync(server->get(), False);
        return true;
    }
    return false;
}

bool PrivateScreen::requestClose(const std::string& title)
{
    for (const Window window : windowsIn(server->get(), clientList))
    {
        if (titleOf(server->get(), window) != title)
            continue;
        XEvent request{};
        request.xclient.type = ClientMessage;
        request.xclient.window = window;
        request.xclient.message_type = XInternAtom(server->get(), "_NET_CLOSE_WINDOW", False);
        request.xclient.format = 32;
        XSendEvent(server->get(), DefaultRootWindow(server->get()), False,
                   SubstructureRedirectMask | SubstructureNotifyMask, &request);
        XSync(server->get(), False);
        return true;
    }
    return false;
}
