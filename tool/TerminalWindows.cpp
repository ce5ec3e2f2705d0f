#include "tool/Terminal.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>

bool outputIsTerminal()
{
    return _isatty(_fileno(stdout)) != 0;
}

void passBytesThrough()
{
    // Otherwise each LF becomes CR LF on its way, and an export has other bytes than the editor's.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}
