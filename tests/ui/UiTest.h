#pragma once

#include <wx/dialog.h>
#include <wx/modalhook.h>

#include <functional>
#include <string>
#include <vector>

class wxTextCtrl;

/// Helpers of the tests that work real windows with real keys and clicks.
///
/// Keys and clicks travel through the display, so what they do is there a little later: wait for it with waitUntil.

/// Handles events until a condition holds.
/// @return false when it still does not hold after a time that only a hanging program needs
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition);

/// Types a text on the keyboard; letters, digits and the punctuation of a US keyboard.
void typeText(const std::string& text);

/// Presses and releases a key.
/// @param key        a key code of the toolkit
/// @param modifiers  the toolkit's wxMOD_ bits
void pressKey(int key, int modifiers = 0);

/// Presses the primary mouse button in the middle of a control.
void clickOn(const wxWindow& control);

/// Gives the keyboard to a field and types over what it holds.
/// Other controls see nothing but the field's own events.
void typeOver(wxTextCtrl& field, const std::string& text);

/// Closes a window the way its close box does.
void pressCloseBox(wxWindow& window);

/// Fails the test where a visible control is cut off, overlaps another one, or is smaller than its text.
void expectCleanLayout(const wxWindow& window);

/// Presses the Tab key once for each of the controls and fails the test when it does not reach them one after the
/// other.
/// @param modifiers  wxMOD_SHIFT for going backwards
void expectTabReaches(const std::vector<wxWindow*>& controls, int modifiers = 0);

/// Works the next modal dialog as its user would: the steps run once it is shown and has the keyboard.
///
/// Fails the test when no dialog is shown while the script exists, and when the steps leave it open; it is then closed.
class DialogScript : private wxModalDialogHook
{
public:
    explicit DialogScript(std::function<void(wxDialog&)> dialogSteps);
    ~DialogScript() override;

    /// Whether the dialog has been shown and is closed again.
    bool hasEnded() const { return ended; }

protected:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

private:
    void play();

    std::function<void(wxDialog&)> steps;
    wxDialog* shown = nullptr;
    bool ended = false;
};

/// Shows a dialog modally and works it.
/// @return what ShowModal answers
int runModal(wxDialog& dialog, const std::function<void()>& steps);

/// Answers every message box while it exists, and keeps what the last one said.
class MessageBoxAnswer : private wxModalDialogHook
{
public:
    /// @param buttonId  identifier of the button to press, for example wxID_OK
    explicit MessageBoxAnswer(int buttonId);

    /// How many message boxes there were.
    int count() const { return asked; }

    const std::string& lastMessage() const { return message; }

protected:
    int Enter(wxDialog* dialog) override;

private:
    int button;
    int asked = 0;
    std::string message;
};

/// Answers the next message box with a key, as its user would, and keeps what it said.
class MessageBoxKey : private wxModalDialogHook
{
public:
    /// @param window  the window that has the keyboard before the box is shown
    /// @param key     a key code of the toolkit
    MessageBoxKey(wxTopLevelWindow& window, int key);

    /// Whether the box has been shown and is closed again.
    bool hasEnded() const { return ended; }

    const std::string& message() const { return text; }
    const std::string& caption() const { return title; }

    /// The window that the box belongs to; none before it is shown.
    const wxWindow* parent() const { return boxParent; }

protected:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

private:
    wxTopLevelWindow& asking;
    int answer;
    bool ended = false;
    std::string text;
    std::string title;
    const wxWindow* boxParent = nullptr;
};

/// Fails the test when a modal dialog is shown that nothing waits for, and answers Cancel in its place.
/// The test program keeps one for its whole run.
class UnexpectedDialogs : private wxModalDialogHook
{
public:
    UnexpectedDialogs() { Register(); }

protected:
    int Enter(wxDialog* dialog) override;
};
