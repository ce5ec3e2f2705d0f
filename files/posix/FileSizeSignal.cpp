#include "files/posix/FileSizeSignal.h"

#include <cerrno>
#include <ctime>

// A write beyond the limit that the user's session sets (`ulimit -f`) is answered twice: it fails with EFBIG, and the
// signal SIGXFSZ ends the program. Saving can deal with the first answer; the second would lose the work.

FileSizeSignalHeld::FileSizeSignalHeld()
{
    sigemptyset(&signal);
    sigaddset(&signal, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signal, &oldMask);
}

FileSizeSignalHeld::~FileSizeSignalHeld()
{
    // A signal that came meanwhile is waiting. It has to be gone before the old mask lets it through.
    // Most often there is none, which is no error of the write that has just been made.
    const int error = errno;
    const timespec atOnce{};
    sigtimedwait(&signal, nullptr, &atOnce); // takes it when it has come
    errno = error;
    pthread_sigmask(SIG_SETMASK, &oldMask, nullptr);
}
