#include "ui/NameOffers.h"

#include <wx/textcompleter.h>
#include <wx/textctrl.h>

#include <utility>

namespace
{

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
    field.AutoComplete(new Completer(std::move(names)));
}
