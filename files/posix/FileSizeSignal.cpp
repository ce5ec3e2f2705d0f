#include "files/posix/FileSizeSignal.h"

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
    const timespec atOnce{};
    sigtimedwait(&signal, nullptr, &atOnce); // takes it when it has come
    pthread_sigmask(SIG_SETMASK, &oldMask, nullptr);
}
