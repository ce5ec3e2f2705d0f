#pragma once

#include "ui/Desktop.h"

#include <wx/app.h>
#include <wx/image.h>

/// The application object of programs that open the editor's windows without being the editor: set up as the editor
/// is, and it goes on when the last window is closed. They need not run its main loop, but may handle events
/// themselves.
class EditorApplication : public wxApp
{
public:
    bool OnInit() override
    {
        SetExitOnFrameDelete(false);
        wxInitAllImageHandlers();
        desktop::preferDark();
        desktop::drawControlsPlainly();
        return true;
    }
};
