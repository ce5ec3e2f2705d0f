// The list below a field on Windows. The toolkit's own completion does there what is wanted.

#include "ui/NameOffers.h"

#include <wx/textcompleter.h>
#include <wx/textctrl.h>

#include <utility>

namespace
{

/// Asked at each change of the field, as the list with GTK is.
class Completer : public wxTextCompleterSimple
{
public:
    explicit Completer(NameSource source) : names(std::move(source)) {}

    void GetCompletions(const wxString& prefix, wxArrayString& result) override
    {
        for (const wxString& name : names(prefix))
            result.Add(name);
    }

private:
    NameSource names;
};

} // namespace

void offerNames(wxTextCtrl& field, NameSource names)
{
    // The field owns it from here on.
    field.AutoComplete(new Completer(std::move(names)));
}
