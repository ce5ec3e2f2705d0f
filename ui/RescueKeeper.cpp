// Writes the rescue copy: every minute in which something has changed, and at the end. The text is made on the thread
// of the windows, which is the only one that changes the map; writing it is left to another thread, so that a slow disk
// does not make the window wait. At most one write is under way.

#include "ui/RescueKeeper.h"

#include "map/DefinitionFile.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <iostream>
#include <new>
#include <system_error>

RescueKeeper::RescueKeeper(const Document& watched, std::filesystem::path folder, int interval)
    : document(watched), copy(std::move(folder))
{
    timer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { refresh(); });
    timer.Start(interval);
}

bool RescueKeeper::isWriting()
{
    if (!writing.valid())
        return false;
    if (writing.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return true;
    // A copy that could not be written is tried again, also when the map stays as it is.
    if (!writing.get())
        writtenText = 0;
    return false;
}

void RescueKeeper::refresh()
try
{
    if (isWriting() || !document.hasUnsavedChanges())
        return;
    std::string text = definitionText(document.map);
    const std::size_t hash = std::hash<std::string>{}(text);
    // Unsaved but the same as a minute ago: the copy on the disk is still right, if newer ones of other runs have not
    // taken its place.
    std::error_code ignored;
    if (hash == writtenText && std::filesystem::exists(copy.file(), ignored))
        return;
    writtenText = hash;
    writing = std::async(std::launch::async, [this, name = document.definitionPath, made = std::move(text)]
                         { return copy.write(name, made); });
}
catch (const std::bad_alloc&)
{
    // The next minute may have more memory; the editor goes on.
}
catch (const std::system_error&)
{
    // No thread to be had: likewise.
}

void RescueKeeper::finish()
try
{
    // No refresh may begin while the last copy is written.
    timer.Stop();
    if (writing.valid())
        writing.wait();
    if (!document.hasUnsavedChanges())
        return copy.remove();
    // One line for whoever started the program from a terminal. No window can be asked for any more.
    if (copy.write(document.definitionPath, definitionText(document.map)))
        std::cerr << "tolvane: unsaved changes are kept in " << copy.file().string() << std::endl;
}
catch (const std::bad_alloc&)
{
    // The copy of the last minute stays.
}

std::filesystem::path RescueKeeper::file()
{
    if (writing.valid())
        writing.wait();
    return copy.file();
}
