#include "tests/soak/Session.h"

#include "benchmarks/FullSize.h"
#include "files/ReadFile.h"

#include <wx/filedlg.h>

Session::Session(Chance& picks) : chance(picks)
{
    folder.write("plant.json", fullDatabaseJson());
    open(true);
}

Session::~Session()
{
    if (window)
        window->Destroy();
    handleEvents();
}

void Session::open(bool anew)
{
    if (anew)
        folder.write("map.csv", mapOfObjects());
    shown = std::make_unique<Document>(folder / "plant.json", folder / "map.csv", 0);
    shown->loadDatabase();
    shown->loadDefinition();
    window = new WorkedFrame(*shown, [this](wxWindow*, const FileQuestion& question) { return chooseFile(question); });
    window->Maximize();
    window->Show();
    window->settleLayout();
    handleEvents();
}

std::string Session::savedText() const
{
    return readFile(folder / "map.csv").value_or("no file");
}

wxString Session::chooseFile(const FileQuestion& question)
{
    // There are no documents to open; what is opened would be another program.
    const bool saves = (question.style & wxFD_SAVE) != 0;
    return saves && chance.happens(75) ? wxString((folder / "export.csv").string()) : wxString();
}
