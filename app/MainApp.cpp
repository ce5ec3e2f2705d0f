#include "app/MainApp.h"

#include "app/CommandLine.h"
#include "app/Installation.h"
#include "ui/Desktop.h"
#include "ui/MainFrame.h"

#include <wx/cmdline.h>

wxIMPLEMENT_APP(MainApp);

bool MainApp::OnInit()
{
    // A wrong command line shows its usage and opens the window all the same, with the values at their defaults.
    wxApp::OnInit();
    wxInitAllImageHandlers();
    desktop::preferDark();
    auto* const frame = new MainFrame(startupValues, findInstallation);
    frame->SetTitle("Modbus Map Editor");
    frame->Maximize();
    frame->Show();
    frame->settleLayout();
    return true;
}

void MainApp::OnInitCmdLine(wxCmdLineParser& parser)
{
    describeOptions(parser);
    wxApp::OnInitCmdLine(parser);
}

bool MainApp::OnCmdLineParsed(wxCmdLineParser& parser)
{
    takeOptions(parser, startupValues);
    return true;
}
