#pragma once

#include "tests/ui/EditorWindow.h"

#include <filesystem>

/// Answers a window's questions for a file while it exists, and keeps the last one.
class ChosenFile
{
public:
    /// @param path  the answer; empty for none
    ChosenFile(EditorWindow& window, const std::filesystem::path& path) : editor(window), answer(path.string())
    {
        editor.setFileChooser(
            [this](wxWindow* parent, const FileQuestion& question)
            {
                ++asked;
                asker = parent;
                last = question;
                return answer;
            });
    }

    ~ChosenFile() { editor.setFileChooser(chooseFileWithDialog); }

    ChosenFile(const ChosenFile&) = delete;
    ChosenFile& operator=(const ChosenFile&) = delete;

    /// How many questions there were.
    int count() const { return asked; }

    /// The window that the last one was asked over.
    const wxWindow* parent() const { return asker; }

    const FileQuestion& question() const { return last; }

private:
    EditorWindow& editor;
    wxString answer;
    int asked = 0;
    const wxWindow* asker = nullptr;
    FileQuestion last;
};
