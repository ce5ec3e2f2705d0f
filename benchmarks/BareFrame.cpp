// A window with two empty grids and nothing else: the least that a program with this toolkit and this look can start.

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/sizer.h>

namespace
{

wxGrid* createEmptyGrid(wxWindow* parent)
{
    const wxColour background(32, 32, 32);
    auto* const grid = new wxGrid(parent, wxID_ANY);
    grid->CreateGrid(0, 0);
    grid->HideRowLabels();
    grid->HideColLabels();
    grid->SetBackgroundColour(background);
    grid->SetDefaultCellBackgroundColour(background);
    return grid;
}

} // namespace

class BareApp : public wxApp
{
public:
    bool OnInit() override
    {
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "Bare frame");
        auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
        sizer->Add(createEmptyGrid(frame), 1, wxEXPAND);
        sizer->Add(createEmptyGrid(frame), 1, wxEXPAND);
        frame->SetSizer(sizer);
        frame->Maximize();
        frame->Show();
        return true;
    }
};

wxIMPLEMENT_APP(BareApp);
