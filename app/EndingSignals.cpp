// Ends that pass the window by: the session ends or the terminal is closed (SIGTERM, SIGHUP), Ctrl+C (SIGINT), the X
// server is gone. None of them runs a destructor, so what has to be kept is kept here.

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
    // Taken out before it runs: a second signal or a lost display during the call must not start it again.
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
    // GTK 3.24 ends the program at once, from inside Xlib, when the connection to the X server breaks. Its handler is
    // kept and called last, for the words that it prints and the exit code that it sets.
    toolkitsDisplayHandler = XSetIOErrorHandler(endWithoutDisplay);
}
