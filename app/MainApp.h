#pragma once

#include "ui/StartupValues.h"

#include <wx/app.h>

/// The application: takes the command line, opens the main window, lives as long as that does.
class MainApp : public wxApp
{
public:
    bool OnInit() override;
    void OnInitCmdLine(wxCmdLineParser& parser) override;
    bool OnCmdLineParsed(wxCmdLineParser& parser) override;

private:
    StartupValues startupValues;
};
