#include "tests/ui/ScreenImage.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>

wxImage screenImage(const wxRect& part)
{
    wxBitmap picture(part.GetSize(), 24);
    wxScreenDC screen;
    wxMemoryDC memory(picture);
    memory.Blit(wxPoint(), part.GetSize(), &screen, part.GetPosition());
    memory.SelectObject(wxNullBitmap);
    return picture.ConvertToImage();
}
