#pragma once

#include "app/CommandLine.h"
#include "map/Document.h"
#include "map/DocumentLoading.h"
#include "ui/RescueKeeper.h"

#include <wx/app.h>

#include <optional>

/// The application: takes the command line, opens the document, shows it in the main window.
class MainApp : public wxApp
{
public:
    bool OnInit() override;
    int OnRun() override;
    int OnExit() override;
    void OnInitCmdLine(wxCmdLineParser& parser) override;
    bool OnCmdLineParsed(wxCmdLineParser& parser) override;

private:
    Document& createDocument();
    void openWindow(const wxString& suitePath, DocumentLoading& loading);

    StartupValues startupValues;
    std::optional<Document> document; ///< the window shows it, and is gone before the application is
    std::optional<RescueKeeper> rescue;
};
