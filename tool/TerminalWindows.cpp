#include "tool/Terminal.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

bool outputIsTerminal()
{
    return _isatty(_fileno(stdout)) != 0;
}

void passBytesThrough()
{
    // Otherwise each LF becomes CR LF on its way, and an export has other bytes than the editor's.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    // Names and paths are written as UTF-8. The code page is that of the console, which others go on using; there is
    // none without one.
    static const UINT before = ::GetConsoleOutputCP();
    if (before != 0 && ::SetConsoleOutputCP(CP_UTF8) != 0)
        std::atexit([] { ::SetConsoleOutputCP(before); });
}
