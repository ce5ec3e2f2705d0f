#include "tool/Terminal.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <initializer_list>
#include <io.h>
#include <windows.h>

namespace
{

/// Until the program ends, its console takes bytes for UTF-8, in which names and paths are written.
void showUtf8()
{
    // The C library hands a console one byte after the other, and a part of a character is shown as none.
    constexpr std::size_t manyLines = 65536;
    for (std::FILE* const stream : {stdout, stderr})
        std::setvbuf(stream, nullptr, _IOFBF, manyLines);
    // The code page is that of the console, which others go on using; there is none without one.
    static const UINT before = ::GetConsoleOutputCP();
    if (before != 0 && ::SetConsoleOutputCP(CP_UTF8) != 0)
        std::atexit([] { ::SetConsoleOutputCP(before); });
}

} // namespace

bool outputIsTerminal()
{
    return _isatty(_fileno(stdout)) != 0;
}

void passBytesThrough()
{
    // Otherwise each LF becomes CR LF on its way, and an export has other bytes than the editor's. On their way to a
    // console, bytes would be taken for characters (seen under Wine 8.0).
    for (std::FILE* const stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
    showUtf8();
}
