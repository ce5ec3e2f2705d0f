#pragma once

#include "map/Document.h"
#include "map/DocumentLoading.h"
#include "tests/core/TempFolder.h"
#include "ui/MainFrame.h"

#include <string>
#include <string_view>
#include <vector>

class SourceBrowser;
class wxBitmapButton;
class wxScrolledWindow;
class wxTextCtrl;
class wxTreeCtrl;

/// The files of a document and the byte order it starts with.
struct DocumentFiles
{
    std::string database;
    std::string definition;
    long swapFlags = 0;
};

/// The document that a window of the tests shows, and how it is asked for files; a base class, so that it is there
/// before the window and still there when that goes.
struct ShownDocument
{
    explicit ShownDocument(const DocumentFiles& files);

    Document shown;
    DocumentLoading loading; ///< which the window waits for, as in the program
    FileChooser chooser = chooseFileWithDialog;
};

/// The main window as a test sees it: its controls in reach, standing on files of the test's own.
class EditorWindow : private ShownDocument, public MainFrame
{
public:
    explicit EditorWindow(const DocumentFiles& files);

    /// The map on which the window works.
    RegisterMap& registerMap() { return shown.map; }

    /// Answers in place of the desktop's file dialog from now on.
    void setFileChooser(FileChooser answer) { chooser = std::move(answer); }

    using MainFrameBase::mapGrid;
    using MainFrameBase::statusLabel;
    using MainFrameBase::viewLabel;

    // The controls of the source side, as they are found inside the window.
    SourceBrowser* const sourceBrowser;
    wxTreeCtrl* const sourceTree;
    wxTextCtrl* const sourceFilter;
    wxGrid* const sourceGrid;
    wxScrolledWindow* const groupFilters;

    /// The button with that tooltip; where two have it, the one on the map's side.
    wxBitmapButton* button(const wxString& tooltip) const;

    /// The copy button beside the title of the tag grid.
    wxBitmapButton* sourceCopyButton() const;

    /// The text of a cell of the map grid.
    std::string cell(int row, int column) const;

    /// The addresses in the Address column, as shown.
    std::vector<std::string> shownRows() const;

    /// The rows selected in the map grid.
    std::vector<int> selectedMapRows() const;

    /// Selects one row of the map grid by clicking on it, and waits until it is.
    void clickMapRow(int row);

    /// Presses the secondary mouse button over a row of the map grid that is in view.
    /// @param row  the number of rows stands for the free place below the last one
    void rightClickMapRow(int row);

    /// Gives the keyboard to the map grid and waits until it has it.
    void focusMapGrid();

    /// Presses the space key in the map grid and waits for the next view.
    /// Keys and clicks arrive in order: whatever was pressed before has then done what it does.
    void nextView();
};

/// A tag database and a map definition file in a folder of their own.
class PlantFiles
{
public:
    /// @param definition  text of the definition file
    explicit PlantFiles(std::string_view definition);

    /// Both files, and the byte order to start with.
    DocumentFiles startup(long swapFlags = 0) const;

    /// The text of the definition file, its lines ended by LF on any system.
    std::string definition() const;

private:
    TempFolder folder;
};

/// Opens the main window, shown and with the keyboard in the map grid.
EditorWindow* openEditor(const DocumentFiles& files);

/// Waits until a window is closed and gone.
[[nodiscard]] bool waitUntilGone(const wxWindow* window);
