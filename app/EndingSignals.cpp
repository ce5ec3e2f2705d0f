#include "app/EndingSignals.h"

#include <X11/Xlib.h>

#include <array>
#include <csignal>
#include <glib-unix.h>
#include <utility>

namespace
{

std::function<void()>& pendingCall()
{
    static std::function<void()> call;
    return call;
}

void callOnce()
{
    if (const auto call = std::exchange(pendingCall(), nullptr))
        call();
}

/// Runs in the event loop, not inside the signal: it may do anything.
template <int Signal>
gboolean endBySignal(gpointer)
{
    callOnce();
    // Whoever sent the signal sees that the program ended by it.
    std::signal(Signal, SIG_DFL);
    std::raise(Signal);
    return G_SOURCE_REMOVE;
}

int (*toolkitsDisplayHandler)(Display*) = nullptr;

int endWithoutDisplay(Display* display)
{
    callOnce();
    return toolkitsDisplayHandler(display); // does not come back
}

} // namespace

void callBeforeEnding(std::function<void()> beforeEnd)
{
    pendingCall() = std::move(beforeEnd);
    g_unix_signal_add(SIGTERM, endBySignal<SIGTERM>, nullptr);
    g_unix_signal_add(SIGINT, endBySignal<SIGINT>, nullptr);
    g_unix_signal_add(SIGHUP, endBySignal<SIGHUP>, nullptr);
    // GTK 3 ends the program at once when the connection to the X server breaks.
    toolkitsDisplayHandler = XSetIOErrorHandler(endWithoutDisplay);
}
