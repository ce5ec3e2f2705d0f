#include "map/TagnameReplace.h"

#include <vector>

namespace
{

/// Renames slots, some names at a time, because new names are quicker made together than one by one.
class Renamer
{
public:
    Renamer(std::string_view wanted, std::string_view substitute) : find(wanted), replacement(substitute) {}

    /// Notes a name for renaming.
    /// @param tagname  none that is noted already; stays where it is until `finish`
    void rename(InternedText& tagname)
    {
        // The slots of an object follow each other and share one name.
        if (newNames.empty() || tagname != lastName)
        {
            if (newNames.size() == batchSize)
                finish();
            lastName = tagname;
            newNames.push_back(replaceAll(tagname.view(), find, replacement));
        }
        noted.push_back({&tagname, newNames.size() - 1});
    }

    /// Gives every noted name its new text.
    void finish()
    {
        const std::vector<std::string_view> texts(newNames.begin(), newNames.end());
        std::vector<InternedText> results(texts.size());
        InternedText::internAll(texts, results);
        for (const auto& [tagname, index] : noted)
            *tagname = results[index];
        newNames.clear();
        noted.clear();
    }

private:
    /// Few enough for the processor's first caches.
    static constexpr std::size_t batchSize = 256;

    struct NotedName
    {
        InternedText* tagname;
        std::size_t newName; ///< index in `newNames`
    };

    std::string_view find;
    std::string_view replacement;
    InternedText lastName;
    std::vector<std::string> newNames;
    std::vector<NotedName> noted;
};

} // namespace

std::string replaceAll(std::string_view text, std::string_view find, std::string_view replacement)
{
    std::string result;
    result.reserve(text.size() + replacement.size());
    if (find.empty())
        return result.append(text);
    std::size_t done = 0;
    for (std::size_t at = text.find(find); at != std::string_view::npos; at = text.find(find, done))
    {
        result.append(text, done, at - done).append(replacement);
        done = at + find.size();
    }
    return result.append(text, done);
}

void replaceInTagnames(RegisterSlots& slots, std::span<const int> addresses, std::string_view find,
                       std::string_view replacement)
{
    Renamer renamer(find, replacement);
    int previous = -1;
    for (const int address : addresses)
    {
        if (!RegisterSlots::contains(address) || slots[address].locked)
            continue;
        // A slot that is listed again goes on from what it was renamed to.
        if (address <= previous)
            renamer.finish();
        previous = address;
        renamer.rename(slots[address].tagname);
    }
    renamer.finish();
}
