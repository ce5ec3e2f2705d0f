#pragma once

#include "files/RescueCopy.h"
#include "map/Document.h"

#include <wx/timer.h>

#include <cstddef>
#include <future>

/// Keeps a copy of changes that are on no disk, however the program ends.
///
/// A crash must not run our code over broken data, so the copy is refreshed while all is well: after each interval with
/// changes. What an orderly end leaves unsaved is written then. Nobody is asked and nothing is shown; only the standard
/// error output names the file.
class RescueKeeper
{
public:
    /// Milliseconds between two refreshes: what a crash may cost.
    static constexpr int everyMinute = 60'000;

    /// @param watched   outlives the keeper
    /// @param folder    where copies go; an empty path keeps none
    /// @param interval  milliseconds, at least 1
    RescueKeeper(const Document& watched, std::filesystem::path folder, int interval = everyMinute);

    /// To be called once, when the program ends: writes what is not saved and was not given up, and removes the copy
    /// when there is nothing to rescue.
    void finish();

    /// Where the copy lies; empty while there is none.
    std::filesystem::path file();

private:
    bool isWriting();
    void refresh();

    const Document& document;
    RescueCopy copy;
    std::future<bool> writing;   ///< whether it was written; the copy belongs to it while it runs
    std::size_t writtenText = 0; ///< hash of the text written last
    wxTimer timer;
};
