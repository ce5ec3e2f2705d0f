// Files in the executable are resources of Windows here. They lie in its image in memory, so nothing is copied or
// released.

#include "ui/EmbeddedFiles.h"

#include <wx/msw/wrapwin.h>
#include <wx/string.h>

std::span<const unsigned char> embeddedFile(std::string_view name)
{
    wxString wide = wxString::FromUTF8(name.data(), name.size());
    wide.Replace("@", "_"); // which the resource compiler does not take in a name
    const HRSRC found = ::FindResourceW(nullptr, wide.wc_str(), RT_RCDATA);
    // A picture that is missing is no failure: its button then shows none.
    if (found == nullptr)
        return {};
    const auto* bytes = static_cast<const unsigned char*>(::LockResource(::LoadResource(nullptr, found)));
    return {bytes, ::SizeofResource(nullptr, found)};
}
