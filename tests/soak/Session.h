#pragma once

#include "map/Document.h"
#include "tests/core/TempFolder.h"
#include "tests/soak/WorkedFrame.h"

#include <wx/weakref.h>

#include <memory>
#include <string>

/// The window on the largest map, and the files it stands on; opened again after it was left.
class Session
{
public:
    /// @param picks  outlives this
    explicit Session(Chance& picks);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Reads the files and shows the window.
    /// @param anew  the map file is the one that everything began with, whatever was saved
    void open(bool anew);

    /// False once the user has left the window.
    bool isOpen() const { return window; }

    WorkedFrame& frame() { return *window; }
    Document& document() { return *shown; }

    /// The bytes of the map file.
    std::string savedText() const;

private:
    wxString chooseFile(const FileQuestion& question);

    Chance& chance;
    TempFolder folder;
    std::unique_ptr<Document> shown;
    wxWeakRef<WorkedFrame> window;
};
