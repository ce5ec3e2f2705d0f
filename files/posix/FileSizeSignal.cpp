#include "files/posix/FileSizeSignal.h"

#include <ctime>

FileSizeSignalHeld::FileSizeSignalHeld()
{
    sigemptyset(&signal);
    sigaddset(&signal, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signal, &oldMask);
}

FileSizeSignalHeld::~FileSizeSignalHeld()
{
    const timespec atOnce{};
    sigtimedwait(&signal, nullptr, &atOnce); // takes it when it has come
    pthread_sigmask(SIG_SETMASK, &oldMask, nullptr);
}
