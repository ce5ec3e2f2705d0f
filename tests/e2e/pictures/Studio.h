#pragma once

#include "tests/core/TempFolder.h"
#include "tests/e2e/PrivateScreen.h"
#include "tests/e2e/ProgramUnderTest.h"

#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

/// An object of a small map.
struct MapObject
{
    std::string address;
    std::string type;
    std::string tagname;
    int registers = 1;
    bool locked = false;
};

/// Runs the program on the sample plant and takes pictures of it.
class Studio
{
public:
    /// Pixels of the screen, across and down, for each pixel of the program.
    static constexpr int scale = 2;

    /// @param pictures  the folder that takes the finished pictures
    explicit Studio(std::filesystem::path pictures);

    /// Starts the program on the sample map, in place of the one that ran before.
    /// @param linesBegin  only the objects whose lines in the sample begin so
    ProgramUnderTest& openSample(const std::string& linesBegin = "",
                                 const std::vector<std::string>& furtherArguments = {});

    /// Starts the program on a map of these Holding registers, all addresses shown, in place of the one before.
    ProgramUnderTest& openSmall(std::initializer_list<MapObject> objects);

    PrivateScreen screen{scale};

    /// Photographs a part of the screen once nothing moves any more.
    /// @return the image, in the studio's own folder
    std::filesystem::path photograph(const Rectangle& part);

    /// Photographs the window that has the keyboard, its frame too, and stores the picture.
    void storeActiveWindow(const std::string& name);

    /// Stores an image.
    /// @param name  of the picture, without folder and extension
    void store(const std::filesystem::path& image, const std::string& name) const;

    /// Photographs the first rows of the map, and stores what it was before something is done beside what it is after.
    template <class Deed>
    void storeBeforeAndAfter(const std::string& name, Deed deed)
    {
        const std::filesystem::path before = photographFirstRows(widthOfTwo);
        deed();
        storeAcross({before, photographFirstRows(widthOfTwo)}, name);
    }

    /// Photographs titles and first rows of the map.
    /// @param width  how much of the rows is shown, in pixels of the program
    std::filesystem::path photographFirstRows(int width);

    /// Joins images side by side and stores the result.
    void storeAcross(const std::vector<std::filesystem::path>& images, const std::string& name);

    /// Joins images of one width below each other and stores the result.
    void storeDown(const std::vector<std::filesystem::path>& images, const std::string& name);

private:
    static constexpr int widthOfTwo = 450;

    ProgramUnderTest& open(const std::string& map, const std::vector<std::string>& furtherArguments);
    void waitUntilStill() const;
    std::filesystem::path newImage(const Picture& picture);
    std::filesystem::path newImageFile();

    std::filesystem::path pictures;
    TempFolder folder;
    std::unique_ptr<ProgramUnderTest> program;
    int images = 0;
};
