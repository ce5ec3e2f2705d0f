// The commands about the whole program: leaving and saving, exporting, the about box and the documents.

#include "map/MapExport.h"
#include "ui/MainFrame.h"
#include "ui/MessageBox.h"
#include "ui/Messages.h"
#include "ui/Paths.h"

#include <wx/aboutdlg.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/generic/aboutdlgg.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

namespace
{

/// Shows the toolkit's own about box and waits until it is closed.
/// Its functions (3.2) wait on some desktops only. With GTK they return while the box is open, and the program would
/// take the next click in the window under it.
void showUntilClosed(const wxAboutDialogInfo& about)
{
    wxGenericAboutDialog box(about);
    box.Bind(
        wxEVT_BUTTON, [&box](wxCommandEvent&) { box.EndModal(wxID_OK); }, wxID_OK);
    box.Bind(wxEVT_CLOSE_WINDOW, [&box](wxCloseEvent&) { box.EndModal(wxID_CANCEL); });
    box.ShowModal();
}

} // namespace

void MainFrame::exitAndSave()
{
    // Changed and changed back is not changed: nobody is asked to save what the file says already.
    if (map.isModified())
    {
        const int answer = messageBox("Save changes ?", confirmationCaption, wxYES_NO);
        // Esc and the box's close button are no answer to a question about a day's work: back to the editor.
        if (answer != wxYES && answer != wxNO)
            return;
        if (answer == wxNO)
            document.discardChanges();
        else if (!saveDefinition())
            return;
    }
    // Forced: nothing may stand in the way of leaving from here on.
    Close(true);
}

bool MainFrame::saveDefinition()
{
    if (document.definitionPath.empty())
    {
        const wxString chosen = chooseFile(this, {"Save map definition file", wxString(), "map.csv",
                                                  "Map definition files (*.csv)|*.csv|All files (*.*)|*.*",
                                                  wxFD_SAVE | wxFD_OVERWRITE_PROMPT});
        // A name that is not given keeps the window open: there is nowhere to save to.
        if (chosen.empty())
            return false;
        document.definitionPath = toPath(chosen);
    }
    // A file that cannot be written is not reported and leaving goes on. The work is then in the rescue copy.
    document.saveDefinition();
    return true;
}

void MainFrame::exportMap()
{
    const wxString path =
        chooseFile(this, {"Export map as CSV or Text file", wxStandardPaths::Get().GetDocumentsDir(), "data.csv",
                          "CSV files (*.csv)|*.csv|Text files (*.txt)|*.txt", wxFD_SAVE | wxFD_OVERWRITE_PROMPT});
    // Like saving, an export that fails stays silent; the file chooser has asked about overwriting.
    if (!path.empty())
        ::exportMap(map, toPath(path));
}

void MainFrame::showAbout()
{
    wxAboutDialogInfo about;
    about.SetName("Tolvane : Modbus Map Editor");
    about.SetVersion(TOLVANE_VERSION, wxString());
    about.SetDescription("Modbus map editor for Varnok and Dravel products");
    about.SetCopyright("Copyright (C) 2026 BELTHORNE LTD");
    // Without a text of its own: the address is what can be clicked.
    about.SetWebSite("https://www.belthorne.example");
    showUntilClosed(about);
}

void MainFrame::showHelp()
{
    // The suite stores paths with backslashes only; other systems write them otherwise.
    wxString folder = documentationFolder;
    folder.Replace("\\", wxString(wxFileName::GetPathSeparator()));
    const wxString chosen =
        chooseFile(this, {"Select a document", folder, "*.pdf", "*.pdf", wxFD_OPEN | wxFD_FILE_MUST_EXIST});
    // The toolkit itself says when a document cannot be opened, for example because no viewer is installed.
    if (!chosen.empty())
        wxLaunchDefaultApplication(chosen);
}
