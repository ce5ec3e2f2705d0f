// The list below a field on Windows is the system's own. The toolkit's use of it (3.2) would write the first name
// behind what is typed, too, and Enter would confirm that.

#include "ui/NameOffers.h"

#include <wx/msw/wrapwin.h>
#include <wx/textctrl.h>

#include <atomic>
#include <cstring>
#include <memory>
#include <mutex>
#include <shldisp.h>
#include <shlguid.h>
#include <shobjidl.h>
#include <utility>

namespace
{

/// The names that are offered at the moment. The system asks for them from a thread of its own.
class OfferedNames : public IEnumString
{
public:
    virtual ~OfferedNames() = default;

    void offer(std::vector<wxString> offered)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        names = std::move(offered);
        next = 0;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** found) override
    {
        *found = nullptr;
        if (wanted != IID_IUnknown && wanted != IID_IEnumString)
            return E_NOINTERFACE;
        *found = this;
        AddRef();
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++owners; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --owners;
        if (left == 0)
            delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, LPOLESTR* texts, ULONG* given) override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        ULONG count = 0;
        while (count < wanted && next < names.size())
        {
            const wxString& name = names[next];
            const std::size_t bytes = (name.length() + 1) * sizeof(wchar_t);
            texts[count] = static_cast<LPOLESTR>(::CoTaskMemAlloc(bytes));
            if (texts[count] == nullptr)
                break;
            std::memcpy(texts[count], name.wc_str(), bytes);
            ++next;
            ++count;
        }
        if (given != nullptr)
            *given = count;
        return count == wanted ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE Reset() override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        next = 0;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Clone(IEnumString** copy) override
    {
        *copy = nullptr;
        return E_NOTIMPL;
    }

private:
    std::atomic<ULONG> owners = 1;
    std::mutex mutex;
    std::vector<wxString> names;
    std::size_t next = 0;
};

/// Gives back an object of the system.
struct Releaser
{
    void operator()(IUnknown* object) const { object->Release(); }
};

template <class Interface>
using Owned = std::unique_ptr<Interface, Releaser>;

/// The system's completion of one field.
class Completion
{
public:
    Completion(wxTextCtrl& owner, NameSource source) : field(owner), names(std::move(source)), offered(new OfferedNames)
    {
        void* made = nullptr;
        if (FAILED(::CoCreateInstance(CLSID_AutoComplete, nullptr, CLSCTX_INPROC_SERVER, IID_IAutoComplete2, &made)))
            return;
        const Owned<IAutoComplete2> completion(static_cast<IAutoComplete2*>(made));
        if (FAILED(completion->Init(field.GetHandle(), offered.get(), nullptr, nullptr)))
            return;
        completion->SetOptions(ACO_AUTOSUGGEST | ACO_UPDOWNKEYDROPSLIST);
        if (SUCCEEDED(completion->QueryInterface(IID_IAutoCompleteDropDown, &made)))
            list.reset(static_cast<IAutoCompleteDropDown*>(made));
    }

    /// Offers what goes with the text that the field holds now.
    void refresh()
    {
        typed = field.GetValue();
        offered->offer(names(typed));
        if (list)
            list->ResetEnumerator();
    }

    bool isOpen() const
    {
        DWORD state = 0;
        return list && SUCCEEDED(list->GetDropDownStatus(&state, nullptr)) && state == ACDD_VISIBLE;
    }

    /// Closes the list and brings back what was typed, which the system does not.
    void close()
    {
        ::SendMessageW(field.GetHandle(), WM_KEYDOWN, VK_ESCAPE, 0);
        field.SetValue(typed);
        field.SetInsertionPointEnd();
    }

private:
    wxTextCtrl& field;
    wxString typed;
    NameSource names;
    Owned<OfferedNames> offered;
    Owned<IAutoCompleteDropDown> list;
};

} // namespace

void offerNames(wxTextCtrl& field, NameSource names)
{
    const auto completion = std::make_shared<Completion>(field, std::move(names));
    // Not at each change: the arrow keys change the field, too.
    field.Bind(wxEVT_AFTER_CHAR,
               [completion](wxKeyEvent& event)
               {
                   event.Skip();
                   completion->refresh();
               });
    // The dialog would take Esc before the list does.
    field.Bind(wxEVT_CHAR_HOOK,
               [completion](wxKeyEvent& event)
               {
                   if (event.GetKeyCode() == WXK_ESCAPE && completion->isOpen())
                       completion->close();
                   else
                       event.Skip();
               });
}
