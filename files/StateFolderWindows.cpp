#include "files/StateFolder.h"

#include <cstdlib>

std::filesystem::path stateFolder()
{
    const wchar_t* const local = ::_wgetenv(L"LOCALAPPDATA");
    return local == nullptr ? std::filesystem::path() : std::filesystem::path(local) / "tolvane";
}
