#include "tests/e2e/pictures/Studio.h"

#include "tests/e2e/Patience.h"
#include "tests/e2e/pictures/ImageFiles.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace
{

/// Lets the toolkit paint nothing that moves, and in the scale of the pictures.
void prepareToolkit(const fs::path& home)
{
    const fs::path settings = home / "config" / "gtk-3.0";
    fs::create_directories(settings);
    std::ofstream(settings / "settings.ini") << "[Settings]\ngtk-cursor-blink=false\ngtk-enable-animations=false\n";
    setenv("GDK_SCALE", std::to_string(Studio::scale).c_str(), 1);
}

/// The lines of the sample map that begin with a text.
std::string sampleLines(const std::string& beginning)
{
    std::ifstream sample(fs::path(SAMPLES) / "waterworks.csv");
    std::string lines;
    for (std::string line; std::getline(sample, line);)
    {
        if (line.starts_with(beginning))
            lines += line + '\n';
    }
    return lines;
}

} // namespace

Studio::Studio(fs::path itsPictures) : pictures(std::move(itsPictures))
{
    prepareToolkit(folder.path());
}

ProgramUnderTest& Studio::open(const std::string& map, const std::vector<std::string>& furtherArguments)
{
    program.reset();
    const fs::path file = folder.write("map.csv", map);
    std::vector<std::string> arguments{"--json", (fs::path(SAMPLES) / "waterworks.json").string(), "--modbus",
                                       file.string()};
    arguments.insert(arguments.end(), furtherArguments.begin(), furtherArguments.end());
    program = std::make_unique<ProgramUnderTest>(screen, folder.path(), arguments);
    program->waitForMainWindow();
    return *program;
}

ProgramUnderTest& Studio::openSample(const std::string& linesBegin, const std::vector<std::string>& furtherArguments)
{
    return open(sampleLines(linesBegin), furtherArguments);
}

ProgramUnderTest& Studio::openSmall(std::initializer_list<MapObject> objects)
{
    std::string lines;
    for (const MapObject& object : objects)
        lines += "HOLDING," + object.address + ",NONE," + object.type + ',' + object.tagname + ",," +
                 std::to_string(object.registers) + (object.locked ? ",LOCKED,OK\n" : ",UNLOCKED,OK\n");
    open(lines, {});
    program->clickTool("Toggle view");
    program->waitForText("EXPANDED");
    program->clickTool("Toggle view");
    program->waitForText("ALL");
    return *program;
}

/// Waits until the screen has stood still for longer than the second between two counts of the errors.
void Studio::waitUntilStill() const
{
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds longEnough{1200};
    Picture last = screen.look(screen.bounds());
    Clock::time_point since = Clock::now();
    const bool still = waitFor(
        [&]
        {
            Picture now = screen.look(screen.bounds());
            if (now != last)
                since = Clock::now();
            last = std::move(now);
            return Clock::now() - since > longEnough;
        });
    if (!still)
        throw std::runtime_error("the screen does not come to rest");
}

fs::path Studio::newImageFile()
{
    return folder / ("image" + std::to_string(++images) + ".ppm");
}

fs::path Studio::newImage(const Picture& picture)
{
    fs::path file = newImageFile();
    picture.save(file);
    return file;
}

fs::path Studio::photograph(const Rectangle& part)
{
    waitUntilStill();
    return newImage(screen.photograph(part));
}

fs::path Studio::photographFirstRows(int width)
{
    constexpr int rows = 8;
    Rectangle part = program->mapGrid().placeOfRows(-1, rows + 1);
    part.width = width;
    return photograph(part);
}

void Studio::store(const fs::path& image, const std::string& name) const
{
    writePng(image, pictures / (name + ".png"));
}

void Studio::storeActiveWindow(const std::string& name)
{
    screen.parkPointer();
    waitUntilStill();
    store(newImage(screen.photographActiveWindow()), name);
}

void Studio::storeAcross(const std::vector<fs::path>& parts, const std::string& name)
{
    const fs::path joined = newImageFile();
    joinAcross(parts, joined);
    store(joined, name);
}

void Studio::storeDown(const std::vector<fs::path>& parts, const std::string& name)
{
    const fs::path joined = newImageFile();
    joinDown(parts, joined);
    store(joined, name);
}
