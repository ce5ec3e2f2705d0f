#include "map/WrittenObjects.h"

#include <cstddef>

// The texts of a full map have megabytes. Their memory is asked for once and generously: growing would copy what is
// there again and again, and would need old and new side by side.

void reserveLines(std::string& text, const RegisterMap& map)
{
    constexpr std::size_t headings = 1024; // of the text report, which has the longest ones
    constexpr std::size_t columns = 96;    // all columns of a line, padding included, without the texts themselves
    std::size_t bytes = headings;
    for (const RegisterSpace space : allSpaces)
    {
        for (const RegisterEntry& slot : map.slots(space))
        {
            if (isWritten(slot))
                bytes += columns + slot.tagname.view().size() + slot.description.view().size();
        }
    }
    text.reserve(bytes);
}
