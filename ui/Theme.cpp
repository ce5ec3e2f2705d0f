// Colours and fonts of the dark look. Red and yellow are kept for what an engineer has to look at: red for what does
// not fit the tag database and for locks, yellow for the mark of an error.

#include "ui/Theme.h"

#include "map/MapRow.h"
#include "source/TagRow.h"

#include <wx/fontenum.h>
#include <wx/settings.h>

#include <map>

namespace
{

/// Whether a face is there; asked once for each, since the toolkit lists every face to find out.
bool isInstalled(const wxString& name)
{
    static std::map<wxString, bool> known;
    const auto found = known.find(name);
    return found != known.end() ? found->second
                                : known.emplace(name, wxFontEnumerator::IsValidFacename(name)).first->second;
}

wxFont face(const wxString& name, int points, int weight)
{
    // The font of a missing face would be the toolkit's guess; the desktop's own face is what its user reads best.
    wxFont font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
    if (isInstalled(name))
        font.SetFaceName(name);
    font.SetPointSize(points);
    // By its number: the named face is of that weight already, the desktop's own face has to be told.
    font.SetNumericWeight(weight);
    return font;
}

} // namespace

namespace theme
{

wxColour buttonBackground()
{
    // Asked every time, because the user may change the desktop's colours meanwhile.
    return wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
}

Rgb cellColour(MapTone tone)
{
    switch (tone)
    {
    case MapTone::Plain:
        return cellText;
    case MapTone::Sound:
        // Brighter than the rest of its row: address, name and type are what one looks for.
        return {220, 220, 220};
    case MapTone::Error:
    case MapTone::Lock:
        // Both are what one has to look at before anything can be done with the register.
        return {255, 0, 0};
    case MapTone::Warning:
        return {255, 255, 0};
    case MapTone::Writable:
        // Orange: the control system can write here, which is worth a second look.
        return {255, 150, 0};
    case MapTone::ReadOnly:
        return {217, 255, 0};
    case MapTone::Continuation:
        // Registers that belong to the object above them stand back.
        return {120, 120, 200};
    case MapTone::Free:
        // Nothing to read here; the address is there to be pasted at.
        return {80, 80, 80};
    }
    return cellText; // for a value that is no tone; the compiler wants an answer
}

Rgb cellColour(TagTone tone)
{
    switch (tone)
    {
    case TagTone::Plain:
        return cellText;
    case TagTone::Integer:
        return {128, 128, 0};
    case TagTone::Float:
        return {68, 128, 128};
    case TagTone::String:
        return {0, 128, 0};
    case TagTone::UnknownType:
        return {255, 255, 255};
    case TagTone::Flags:
        // As beside the check boxes that filter by these flags.
        return groupFlag;
    }
    return cellText; // as above
}

wxFont regular(int points)
{
    return face("Segoe UI", points, wxFONTWEIGHT_NORMAL);
}

wxFont semibold(int points)
{
    return face("Segoe UI Semibold", points, wxFONTWEIGHT_SEMIBOLD);
}

wxFont cell()
{
    return regular(10);
}

wxFont columnTitle()
{
    // Small, so that each title fits the column that its texts need.
    return regular(8);
}

wxFont dialog()
{
    return face("Arial", 10, wxFONTWEIGHT_NORMAL);
}

wxFont helpButton()
{
    return face("Arial Rounded MT Bold", 10, wxFONTWEIGHT_NORMAL);
}

} // namespace theme
