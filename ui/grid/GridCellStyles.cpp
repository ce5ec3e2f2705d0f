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
    style->IncRef();
    return style.get();
}
