// The order of a start: command line, look of the desktop, installation, files, window. Each step that has something to
// say shows its message before the next one begins. The window comes last, so it is never seen half filled. The files
// have nothing to say before they are waited for, so they are read from the first moment on, on threads of their own.

#include "app/MainApp.h"

#include "app/EndingSignals.h"
#include "app/Installation.h"
#include "files/StateFolder.h"
#include "ui/Desktop.h"
#include "ui/MainFrame.h"
#include "ui/MessageBox.h"
#include "ui/Paths.h"

#include <wx/cmdline.h>
#include <wx/image.h>

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
    const std::optional<wxString> suitePath = findInstallation();
    std::optional<DocumentLoading> loading;
    if (suitePath)
        loading.emplace(createDocument());
    // Before any window: their icons and buttons are PNG pictures.
    wxInitAllImageHandlers();
    desktop::preferDark();
    desktop::drawControlsPlainly();
    // The program comes with the suite and is not meant to run without it. An empty path is enough: only Help uses it.
    if (!suitePath)
    {
        messageBox("Cannot locate registry entries required by this program\n\n"
                   "This program cannot continue and will now terminate",
                   "Alert - Program cannot continue", wxOK | wxICON_ERROR);
        return true; // without a document there is nothing to run
    }
    openWindow(*suitePath, *loading);
    return true;
}

Document& MainApp::createDocument()
{
    document.emplace(toPath(startupValues.databasePath), toPath(startupValues.definitionPath), startupValues.swapFlags);
    document->spareFolder = rescueFolder();
    return *document;
}

void MainApp::openWindow(const wxString& suitePath, DocumentLoading& loading)
{
    auto* const frame = new MainFrame(*document, suitePath, chooseFileWithDialog, &loading);
    // After loading: what has just been read is on the disk and needs no copy.
    rescue.emplace(*document, rescueFolder());
    callBeforeEnding([this] { rescue->finish(); });

    frame->SetTitle("Modbus Map Editor");
    frame->Maximize();
    frame->Show();
    // Only a window that is shown knows its size, from which the sash and the last columns get theirs.
    frame->settleLayout();
}

int MainApp::OnRun()
{
    // The user has been told why. The exit code must not look like a crash to a script that started the program; after
    // an OnInit that fails toolkit 3.2 would end with -1.
    return document ? wxApp::OnRun() : EXIT_SUCCESS;
}

int MainApp::OnExit()
{
    // The window is gone by now, the document is still there.
    if (rescue)
        rescue->finish();
    return wxApp::OnExit();
}

void MainApp::OnInitCmdLine(wxCmdLineParser& parser)
{
    // Before the toolkit adds help and verbose: the usage message has them in this order.
    describeOptions(parser);
    wxApp::OnInitCmdLine(parser);
}

bool MainApp::OnCmdLineParsed(wxCmdLineParser& parser)
{
    // The toolkit's own part is left out; it would only make its log talkative.
    takeOptions(parser, startupValues);
    return true;
}
