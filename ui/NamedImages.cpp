// Pictures out of the executable. Each is there twice, the second time with twice the pixels, and the toolkit takes the
// one that suits the screen.

#include "ui/NamedImages.h"

#include "ui/EmbeddedFiles.h"
#include "ui/ToolkitText.h"

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/mstream.h>

#include <array>
#include <cstddef>
#include <span>

namespace
{

using Bytes = std::span<const unsigned char>;

wxBitmap decoded(Bytes png)
{
    wxMemoryInputStream stream(png.data(), png.size());
    return wxBitmap(wxImage(stream, wxBITMAP_TYPE_PNG));
}

/// Width and height in pixels, which a PNG file says in its first chunk; no size for bytes that are no PNG file.
wxSize sizeOf(Bytes png)
{
    constexpr std::size_t widthPlace = 16;
    constexpr std::size_t heightPlace = 20;
    if (png.size() < heightPlace + 4)
        return {};
    // The highest byte first; pictures of more than 65,535 pixels are not made here.
    const auto numberAt = [png](std::size_t place) { return png[place + 2] * 256 + png[place + 3]; };
    return {numberAt(widthPlace), numberAt(heightPlace)};
}

/// A picture at two scales that is decoded when it is painted for the first time. The buttons have a hundred and fifty
/// pictures, of which a start shows twenty-four: decoding all of them would take longer than anything else about them.
class LazyPicture : public wxBitmapBundleImpl
{
public:
    LazyPicture(Bytes singleScale, Bytes doubleScale) : single(singleScale), twofold(doubleScale) {}

    wxSize GetDefaultSize() const override { return sizeOf(single); }

    wxSize GetPreferredBitmapSizeAtScale(double scale) const override { return DoGetPreferredSize(scale); }

    wxBitmap GetBitmap(const wxSize& size) override
    {
        if (size == sizeOf(single))
            return bitmapOf(single, singleBitmap);
        const wxBitmap& larger = bitmapOf(twofold, twofoldBitmap);
        if (size == sizeOf(twofold))
            return larger;
        // Any other size is made of these two by the toolkit's own rules.
        return wxBitmapBundle::FromBitmaps(bitmapOf(single, singleBitmap), larger).GetBitmap(size);
    }

protected:
    double GetNextAvailableScale(std::size_t& i) const override
    {
        constexpr std::array<double, 3> scales{1, 2, 0};
        return scales[i++];
    }

private:
    static const wxBitmap& bitmapOf(Bytes png, wxBitmap& bitmap)
    {
        if (!bitmap.IsOk())
            bitmap = decoded(png);
        return bitmap;
    }

    Bytes single;
    Bytes twofold;
    wxBitmap singleBitmap;
    wxBitmap twofoldBitmap;
};

Bytes pictureNamed(const wxString& name)
{
    return embeddedFile(modelText(name));
}

} // namespace

wxBitmapBundle namedImage(const wxString& name)
{
    const Bytes single = pictureNamed(name);
    const Bytes twofold = pictureNamed(name + "@2x");
    // With one of the two a button would be sharp on some screens and blurred on the others; a missing one is seen at
    // once.
    if (single.empty() || twofold.empty())
        return {};
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the bundle counts its users and deletes it
    return wxBitmapBundle::FromImpl(new LazyPicture(single, twofold));
}

wxIconBundle namedIcon(const wxString& name)
{
    wxIconBundle icons;
    for (const wxString& pictureName : {name, name + "@2x"})
    {
        const Bytes png = pictureNamed(pictureName);
        // A window without an icon of its own gets the desktop's.
        if (png.empty())
            continue;
        wxIcon icon;
        icon.CopyFromBitmap(decoded(png));
        icons.AddIcon(icon);
    }
    return icons;
}
