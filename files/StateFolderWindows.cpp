#include "files/StateFolder.h"

#include <cstdlib>

std::filesystem::path stateFolder()
{
    // The local folder rather than the roaming one: a copy of unfinished work is of use on this machine only. In wide
    // characters, because the user's name in it may be one that the code page does not have.
    const wchar_t* const local = ::_wgetenv(L"LOCALAPPDATA");
    return local == nullptr ? std::filesystem::path() : std::filesystem::path(local) / "tolvane";
}
