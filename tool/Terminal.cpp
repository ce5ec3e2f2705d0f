#include "tool/Terminal.h"

#include <unistd.h>

bool outputIsTerminal()
{
    return ::isatty(STDOUT_FILENO) == 1;
}

void passBytesThrough()
{
    // They do here, and a terminal takes them for what the user has chosen, which is UTF-8.
}
