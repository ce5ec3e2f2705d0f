#pragma once

#include <wx/bmpbuttn.h>
#include <wx/window.h>

#include <stdexcept>
#include <vector>

/// Every control of a class below a window, in the order in which they were made.
template <class Control>
std::vector<Control*> controlsBelow(const wxWindow& parent)
{
    std::vector<Control*> found;
    for (wxWindow* const child : parent.GetChildren())
    {
        wxWindow& window = *child;
        if (auto* const control = dynamic_cast<Control*>(&window))
            found.push_back(control);
        const std::vector<Control*> further = controlsBelow<Control>(window);
        found.insert(found.end(), further.begin(), further.end());
    }
    return found;
}

/// The first of them; throws std::invalid_argument where there is none.
template <class Control>
Control* firstBelow(const wxWindow& parent)
{
    const std::vector<Control*> found = controlsBelow<Control>(parent);
    if (found.empty())
        throw std::invalid_argument("no such control");
    return found.front();
}

/// The buttons below a window that have that tooltip.
inline std::vector<wxBitmapButton*> buttonsCalled(const wxWindow& window, const wxString& tooltip)
{
    std::vector<wxBitmapButton*> buttons = controlsBelow<wxBitmapButton>(window);
    std::erase_if(buttons, [&](const wxBitmapButton* button) { return button->GetToolTipText() != tooltip; });
    return buttons;
}
