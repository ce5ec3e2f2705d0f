// The program's entry on systems where arguments are bytes.

#include "text/EscapedBytes.h"

#include <wx/init.h>
#include <wx/string.h>

#include <string>
#include <vector>

/// The toolkit decodes arguments by the locale and loses what is no text in it. A path is whatever bytes the system
/// gave, so they are handed over as text from which the very bytes can be had again.
int main(int argc, char** argv)
{
    std::vector<std::wstring> words;
    words.reserve(static_cast<std::size_t>(argc));
    for (int i = 0; i < argc; ++i)
        words.push_back(wxString::FromUTF8(escapeBytes(argv[i])).ToStdWstring());
    std::vector<wchar_t*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::wstring& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return wxEntry(argc, pointers.data());
}
