#pragma once

#include <filesystem>
#include <string_view>

/// A copy of work that is on no disk yet, in a folder of the user's own, for the day on which a run does not end as it
/// should. It is made without a word and read by nobody but the user.
class RescueCopy
{
public:
    /// Copies of all runs that are kept in one folder; the oldest go first.
    static constexpr int keptCopies = 10;

    /// Writes nothing yet.
    /// @param copiesFolder  made when it is missing, readable by its user alone; an empty path keeps no copy
    explicit RescueCopy(std::filesystem::path copiesFolder);

    /// Writes the work, in place of what this run wrote before, as safely as the work's own file would be written.
    /// @param workName  file name of the work: the copy's name is that name, the time and its extension. Only the name
    ///                  given at the first writing counts
    /// @return false when it could not be written; an earlier copy of this run is then as it was
    bool write(const std::filesystem::path& workName, std::string_view bytes);

    /// Takes this run's copy away again: the work has got to its own file, or is not wanted.
    void remove();

    /// Where this run's copy lies; empty while there is none.
    const std::filesystem::path& file() const { return copy; }

private:
    std::filesystem::path folder;
    std::filesystem::path copy;
};
