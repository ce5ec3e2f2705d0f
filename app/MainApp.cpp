#include "app/MainApp.h"

#include "app/EndingSignals.h"
#include "app/Installation.h"
#include "files/StateFolder.h"
#include "ui/Desktop.h"
#include "ui/MainFrame.h"
#include "ui/MessageBox.h"
#include "ui/OpenDocument.h"
#include "ui/Paths.h"

#include <wx/cmdline.h>

#include <cstdlib>

wxIMPLEMENT_APP_NO_MAIN(MainApp);

namespace
{

/// @return empty when the system has no place for it
std::filesystem::path rescueFolder()
{
    const std::filesystem::path state = stateFolder();
    return state.empty() ? state : state / "rescue";
}

} // namespace

bool MainApp::OnInit()
{
    // A wrong command line shows its usage and opens the window all the same, with the values at their defaults.
    wxApp::OnInit();
    wxInitAllImageHandlers();
    desktop::preferDark();
    desktop::drawControlsPlainly();
    const std::optional<wxString> suitePath = findInstallation();
    if (!suitePath)
    {
        messageBox("Cannot locate registry entries required by this program\n\n"
                   "This program cannot continue and will now terminate",
                   "Alert - Program cannot continue", wxOK | wxICON_ERROR);
        return true; // without a document there is nothing to run
    }
    document.emplace(toPath(startupValues.databasePath), toPath(startupValues.definitionPath), startupValues.swapFlags);
    openDocument(*document);
    rescue.emplace(*document, rescueFolder());
    callBeforeEnding([this] { rescue->finish(); });

    auto* const frame = new MainFrame(*document, *suitePath);
    frame->SetTitle("Modbus Map Editor");
    frame->Maximize();
    frame->Show();
    frame->settleLayout();
    return true;
}

int MainApp::OnRun()
{
    // The user has been told why; whatever started the program is not to take that for a crash, as it would take an
    // OnInit that fails (toolkit 3.2 then ends with -1).
    return document ? wxApp::OnRun() : EXIT_SUCCESS;
}

int MainApp::OnExit()
{
    if (rescue)
        rescue->finish();
    return wxApp::OnExit();
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
