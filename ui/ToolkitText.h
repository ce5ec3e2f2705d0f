#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

/// A text of the model in the toolkit's form.
inline wxString toolkitText(std::string_view utf8)
{
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

/// A text from a control in the model's form, UTF-8.
inline std::string modelText(const wxString& text)
{
    return text.utf8_string();
}
