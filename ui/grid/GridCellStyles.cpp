// The grid asks for an attribute for every cell that it paints. There are only about ten looks, each a colour and an
// alignment, so each is made once and lent out. Ground and font are not set here: the grid answers them from its
// defaults.

#include "ui/grid/GridCellStyles.h"

#include "ui/Theme.h"

wxGridCellAttr* GridCellStyles::share(Rgb colour, int alignment)
{
    wxGridCellAttrPtr& style = styles[{colour.red, colour.green, colour.blue, alignment}];
    if (!style)
    {
        style = wxGridCellAttrPtr(new wxGridCellAttr);
        style->SetTextColour(theme::colour(colour));
        style->SetAlignment(alignment, wxALIGN_CENTRE);
        style->SetReadOnly();
    }
    // The grid gives back a reference for each cell that it has painted.
    style->IncRef();
    return style.get();
}
