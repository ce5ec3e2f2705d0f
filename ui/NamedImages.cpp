// Pictures out of the executable. Each is there twice, the second time with twice the pixels, and the toolkit takes the
// one that suits the screen.

#include "ui/NamedImages.h"

#include "ui/EmbeddedFiles.h"
#include "ui/ToolkitText.h"

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/mstream.h>

namespace
{

wxBitmap bitmapOf(const wxString& name)
{
    const std::span<const unsigned char> bytes = embeddedFile(modelText(name));
    if (bytes.empty())
        return {};
    wxMemoryInputStream stream(bytes.data(), bytes.size());
    return wxBitmap(wxImage(stream, wxBITMAP_TYPE_PNG));
}

} // namespace

wxBitmapBundle namedImage(const wxString& name)
{
    const wxBitmap single = bitmapOf(name);
    const wxBitmap twofold = bitmapOf(name + "@2x");
    // With one of the two a button would be sharp on some screens and blurred on the others; a missing one is seen at
    // once.
    if (!single.IsOk() || !twofold.IsOk())
        return {};
    return wxBitmapBundle::FromBitmaps(single, twofold);
}

wxIconBundle namedIcon(const wxString& name)
{
    wxIconBundle icons;
    for (const wxString& pictureName : {name, name + "@2x"})
    {
        const wxBitmap bitmap = bitmapOf(pictureName);
        // A window without an icon of its own gets the desktop's.
        if (!bitmap.IsOk())
            continue;
        wxIcon icon;
        icon.CopyFromBitmap(bitmap);
        icons.AddIcon(icon);
    }
    return icons;
}
