#include "tests/ui/UiTest.h"

#include "ui/ToolkitText.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/arrstr.h>
#include <wx/evtloop.h>
#include <wx/msgdlg.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace
{

/// Longer than the slowest machine takes for anything that is tested.
constexpr std::chrono::seconds patience(30);

/// Milliseconds for which a wait for events lasts before the condition is looked at again.
constexpr unsigned long eventWait = 10;

/// Reads the caption that a message box was made with, which it does not tell of itself.
class CaptionReader : public wxMessageDialogBase
{
public:
    static std::string captionOf(const wxMessageDialogBase& box) { return modelText(box.*(&CaptionReader::m_caption)); }
};

/// The dialog that something waits for.
const wxDialog* expectedDialog = nullptr;

std::string describe(const wxDialog& dialog)
{
    if (const auto* const box = dynamic_cast<const wxMessageDialogBase*>(&dialog))
        return "message box \"" + modelText(box->GetMessage()) + "\"";
    return "dialog \"" + modelText(dialog.GetTitle()) + "\"";
}

std::string describe(const wxWindow& control)
{
    return modelText(control.GetClassInfo()->GetClassName()) + (" \"" + modelText(control.GetLabel()) + "\"");
}

/// Whether a control has got its place; a window that has just appeared has a moment without any room in it.
bool isPlaced(const wxWindow& control)
{
    return control.IsShownOnScreen() && !control.GetRect().IsEmpty();
}

/// Waits for an event and handles it, and what has been put off until there is none.
/// Only on GTK does waiting alone do the latter; a loop that runs by itself does it on any system.
void handleEvents(wxEventLoopBase& loop)
{
    loop.DispatchTimeout(eventWait);
    wxTheApp->ProcessPendingEvents();
    if (!loop.Pending())
        loop.ProcessIdle();
}

bool isLaidOut(const wxWindow& window)
{
    const wxWindowList& children = window.GetChildren();
    return std::all_of(children.begin(), children.end(),
                       [](const wxWindow* child) { return !child->IsShown() || isPlaced(*child); });
}

/// Pixels of the longest line of a control's label.
int labelWidth(const wxWindow& control)
{
    int width = 0;
    for (const wxString& line : wxSplit(control.GetLabel(), '\n', '\0'))
        width = std::max(width, control.GetTextExtent(line).GetWidth());
    return width;
}

/// Pixels of height that the text of a control needs, 0 when it shows none.
int textHeight(const wxWindow& control)
{
    const bool showsText = !control.GetLabel().empty() || dynamic_cast<const wxTextEntry*>(&control);
    return showsText ? control.GetCharHeight() : 0;
}

} // namespace

bool waitUntil(const std::function<bool()>& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition())
    {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        handleEvents(*wxEventLoopBase::GetActive());
    }
    return true;
}

void typeText(const std::string& text)
{
    wxUIActionSimulator().Text(text.c_str());
}

void pressKey(int key, int modifiers)
{
    wxUIActionSimulator().Char(key, modifiers);
}

void clickOn(const wxWindow& control)
{
    EXPECT_TRUE(waitUntil([&control] { return isPlaced(control); })) << describe(control);
    const wxRect rect = control.GetScreenRect();
    wxUIActionSimulator simulator;
    simulator.MouseMove(rect.x + rect.width / 2, rect.y + rect.height / 2);
    simulator.MouseClick();
}

void typeOver(wxTextCtrl& field, const std::string& text)
{
    field.SetFocus();
    EXPECT_TRUE(waitUntil([&field] { return field.HasFocus(); }));
    field.SelectAll();
    typeText(text);
    EXPECT_TRUE(waitUntil([&field, &text] { return modelText(field.GetValue()) == text; }))
        << "the field holds \"" << modelText(field.GetValue()) << '"';
}

void pressCloseBox(wxWindow& window)
{
    window.Close();
}

void expectCleanLayout(const wxWindow& window)
{
    const wxRect inside(window.GetClientSize());
    std::vector<const wxWindow*> visible;
    for (const wxWindow* const child : window.GetChildren())
    {
        if (!child->IsShown() || child->IsTopLevel())
            continue;
        EXPECT_TRUE(inside.Contains(child->GetRect())) << describe(*child) << " is cut off";
        EXPECT_GE(child->GetSize().GetWidth(), labelWidth(*child)) << describe(*child) << " is clipped";
        EXPECT_GE(child->GetSize().GetHeight(), textHeight(*child)) << describe(*child) << " is too low";
        for (const wxWindow* const other : visible)
        {
            EXPECT_FALSE(other->GetRect().Intersects(child->GetRect()))
                << describe(*other) << " overlaps " << describe(*child);
        }
        visible.push_back(child);
    }
}

void expectTabReaches(const std::vector<wxWindow*>& controls, int modifiers)
{
    for (const wxWindow* const next : controls)
    {
        pressKey(WXK_TAB, modifiers);
        ASSERT_TRUE(waitUntil([next] { return next->HasFocus(); })) << describe(*next) << " is not reached";
    }
}

DialogScript::DialogScript(std::function<void(wxDialog&)> dialogSteps) : steps(std::move(dialogSteps))
{
    Register();
}

DialogScript::~DialogScript()
{
    Unregister();
    EXPECT_TRUE(ended) << "the expected dialog was not shown";
}

int DialogScript::Enter(wxDialog* dialog)
{
    if (shown || ended)
        return wxID_NONE;
    shown = dialog;
    expectedDialog = dialog;
    dialog->CallAfter([this] { play(); });
    return wxID_NONE;
}

void DialogScript::Exit(wxDialog* dialog)
{
    if (dialog != shown)
        return;
    shown = nullptr;
    ended = true;
}

void DialogScript::play()
{
    wxDialog& dialog = *shown;
    EXPECT_TRUE(waitUntil([&dialog] { return dialog.IsActive() && isLaidOut(dialog); }))
        << describe(dialog) << " never got the keyboard";
    steps(dialog);
    // The toolkit's dialogs of Windows stay modal until the steps have returned; what ends them hides them on any
    // system.
    if (waitUntil([&dialog] { return !dialog.IsModal() || !dialog.IsShown(); }))
        return;
    ADD_FAILURE() << describe(dialog) << " was left open";
    dialog.EndModal(wxID_CANCEL);
}

int runModal(wxDialog& dialog, const std::function<void()>& steps)
{
    const DialogScript script([&steps](wxDialog&) { steps(); });
    return dialog.ShowModal();
}

MessageBoxAnswer::MessageBoxAnswer(int buttonId) : button(buttonId)
{
    Register();
}

int MessageBoxAnswer::Enter(wxDialog* dialog)
{
    const auto* const box = dynamic_cast<const wxMessageDialogBase*>(dialog);
    if (!box)
        return wxID_NONE;
    ++asked;
    message = modelText(box->GetMessage());
    return button;
}

MessageBoxKey::MessageBoxKey(wxTopLevelWindow& window, int key) : asking(window), answer(key)
{
    Register();
}

int MessageBoxKey::Enter(wxDialog* dialog)
{
    const auto* const box = dynamic_cast<const wxMessageDialogBase*>(dialog);
    if (!box || ended)
        return wxID_NONE;
    expectedDialog = dialog;
    text = modelText(box->GetMessage());
    title = CaptionReader::captionOf(*box);
    boxParent = box->GetParent();
    // The desktop draws the box and tells the toolkit nothing but that its own window has lost the keyboard.
    asking.CallAfter(
        [this]
        {
            EXPECT_TRUE(waitUntil([this] { return !asking.IsActive(); })) << "the box never got the keyboard";
            pressKey(answer);
        });
    return wxID_NONE;
}

void MessageBoxKey::Exit(wxDialog*)
{
    ended = true;
}

int UnexpectedDialogs::Enter(wxDialog* dialog)
{
    if (std::exchange(expectedDialog, nullptr) == dialog)
        return wxID_NONE;
    ADD_FAILURE() << "unexpected " << describe(*dialog);
    return wxID_CANCEL;
}
