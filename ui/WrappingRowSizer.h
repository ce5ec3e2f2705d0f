#pragma once

#include <wx/sizer.h>

#include <vector>

/// A row of controls with spacers between them. Where there is little room its image buttons first get a little
/// narrower; then it goes on in further rows, so that every control can be reached.
///
/// The toolkit's own wrapping sizer gets no height for its further rows inside a column, and narrows nothing.
class WrappingRowSizer : public wxSizer
{
public:
    /// @param narrowing  pixels by which an image button may be narrower than it asks for
    explicit WrappingRowSizer(int narrowing) : mostNarrowing(narrowing) {}

    wxSize CalcMin() override;
    void RepositionChildren(const wxSize& minimalSize) override;

private:
    using Items = std::vector<wxSizerItem*>;

    /// Items that stand beside each other, and by how many pixels each image button among them is narrower.
    struct Row
    {
        Items items;
        int narrowing = 0;
    };

    /// Spreads the items over as many rows as a width takes.
    std::vector<Row> rowsFor(int width) const;

    std::vector<Row> wrapped(const Items& items, int width) const;

    void place(const Row& row, wxPoint start) const;

    /// Has what is around this laid out again, if the rows need another height than there is: how many there are is
    /// known only once there is a width.
    void askForHeight();

    static int widthOf(const Row& row);
    static int heightOf(const Row& row);
    static int heightOf(const std::vector<Row>& rows);

    int mostNarrowing;
    wxSize asked; ///< what was asked for last, so that nobody is asked for ever who has no more to give
};
