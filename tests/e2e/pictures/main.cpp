// Takes the pictures of the README and the user guide: drives the program on the sample plant.
// Usage: guide_pictures FOLDER [PICTURES...]

#include "tests/e2e/pictures/GuidePictures.h"
#include "tests/e2e/pictures/Studio.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

namespace
{

struct Sitting
{
    std::string_view name;
    void (*take)(Studio& studio);
};

constexpr Sitting sittings[] = {
    {"main-window", takeMainWindow},
    {"mistakes", takeMistakes},
    {"filter", takeFilter},
    {"first-published", takeFirstPublished},
    {"views", takeViews},
    {"editor", takeEditor},
    {"settings", takeSettings},
    {"replace", takeReplace},
    {"save-question", takeSaveQuestion},
    {"paste-refused", takePasteRefused},
    {"paste", takePaste},
    {"append", takeAppend},
    {"shove", takeShove},
    {"compress", takeCompress},
};

} // namespace

int main(int argc, char** argv)
try
{
    const std::vector<std::string_view> words(argv + 1, argv + argc);
    if (words.empty())
    {
        std::cerr << "usage: guide_pictures FOLDER [PICTURES...]\n";
        return EXIT_FAILURE;
    }
    Studio studio{words.front()};
    for (const Sitting& sitting : sittings)
    {
        if (words.size() == 1 || std::find(words.begin() + 1, words.end(), sitting.name) != words.end())
            sitting.take(studio);
    }
    return EXIT_SUCCESS;
}
catch (const std::exception& error)
{
    std::cerr << "guide_pictures: " << error.what() << '\n';
    return EXIT_FAILURE;
}
