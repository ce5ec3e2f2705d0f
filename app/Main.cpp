// The program's entry on systems where arguments are bytes.

#include "memory/FreePages.h"
#include "text/EscapedBytes.h"

#include <wx/init.h>
#include <wx/string.h>

#include <string>
#include <vector>

/// Toolkit 3.2 decodes arguments by the locale and loses the bytes that are no text in it. A path may hold any bytes,
/// so they are handed over as text from which the same bytes can be made again.
int main(int argc, char** argv)
{
    keepOneStore();
    std::vector<std::wstring> words;
    words.reserve(static_cast<std::size_t>(argc));
    for (int i = 0; i < argc; ++i)
        words.push_back(wxString::FromUTF8(escapeBytes(argv[i])).ToStdWstring());
    std::vector<wchar_t*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::wstring& word : words)
        pointers.push_back(word.data());
    // The toolkit walks to the end of the list, as it may in argv.
    pointers.push_back(nullptr);
    return wxEntry(argc, pointers.data());
}
