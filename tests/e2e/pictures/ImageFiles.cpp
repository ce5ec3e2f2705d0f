#include "tests/e2e/pictures/ImageFiles.h"

#include "tests/e2e/Patience.h"
#include "tests/e2e/Process.h"

#include <stdexcept>

namespace fs = std::filesystem;

namespace
{

using Words = std::vector<std::string>;

constexpr const char* orange = "#ff8000";

Words& operator+=(Words& words, const Words& more)
{
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

void convert(const Words& arguments)
{
    Process process(IMAGE_CONVERTER, arguments, {}, "/dev/null");
    const std::optional<int> code = waitFor([&] { return process.exitCode(); });
    if (code != 0)
        throw std::runtime_error("not converted: " + arguments.back());
}

/// The names of images, something between each two of them.
Words alternating(const Words& images, const Words& between)
{
    Words words;
    for (const std::string& image : images)
    {
        if (!words.empty())
            words += between;
        words.push_back(image);
    }
    return words;
}

Words namesOf(const std::vector<fs::path>& images)
{
    return {images.begin(), images.end()};
}

} // namespace

void writePng(const fs::path& image, const fs::path& png)
{
    convert({image, "+dither", "-colors", "200", "-strip", "-define", "png:exclude-chunks=date,time",
             "PNG8:" + png.string()});
}

void halve(const fs::path& image)
{
    convert({image, "-resize", "50%", image});
}

void joinAcross(const std::vector<fs::path>& images, const fs::path& result)
{
    const Words arrow{"(",     "-size", "120x80", "xc:white",
                      "-fill", orange,  "-draw",  "polygon 14,32 70,32 70,14 106,40 70,66 70,48 14,48",
                      ")"};
    const Words gap{"(", "-size", "30x10", "xc:white", ")"};
    Words framed;
    for (const fs::path& image : images)
    {
        convert({image, "-bordercolor", "#5a5a5a", "-border", "2", image});
        framed.push_back(image);
    }
    Words arguments{"-background", "white", "-gravity", images.size() == 2 ? "center" : "north"};
    arguments += alternating(framed, images.size() == 2 ? arrow : gap);
    arguments += {"+append", result};
    convert(arguments);
}

void joinDown(const std::vector<fs::path>& images, const fs::path& result)
{
    // The line is as wide as the images once it is stretched over them.
    Words arguments{"-background", orange};
    arguments += alternating(namesOf(images), {"(", "-size", "1x8", "xc:" + std::string(orange), ")"});
    arguments += {"-append", result};
    convert(arguments);
}

void addMarks(const fs::path& image, const std::vector<Mark>& marks)
{
    constexpr int radius = 38;
    Words arguments{image, "-font", "DejaVu-Sans-Bold", "-pointsize", "46", "-strokewidth", "3"};
    for (const Mark& mark : marks)
    {
        const std::string corner =
            '+' + std::to_string(mark.place.x - radius) + '+' + std::to_string(mark.place.y - radius);
        arguments += {"(", "-size", "76x76", "xc:none", "-stroke", "black", "-fill", orange};
        arguments += {"-draw", "circle 38,38 74,38", "-stroke", "none", "-fill", "black"};
        arguments += {"-gravity", "center", "-annotate", "0", std::to_string(mark.number), ")"};
        arguments += {"-gravity", "northwest", "-geometry", corner, "-composite"};
    }
    arguments.push_back(image);
    convert(arguments);
}
