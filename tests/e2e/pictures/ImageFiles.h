#pragma once

#include "tests/e2e/Geometry.h"

#include <filesystem>
#include <string>
#include <vector>

/// What is made of image files with ImageMagick. Each operation throws std::runtime_error when it fails.

/// Writes an image small and without anything that differs from run to run.
void writePng(const std::filesystem::path& image, const std::filesystem::path& png);

/// Makes an image half as wide and high, in its place.
void halve(const std::filesystem::path& image);

/// Puts two images side by side, an arrow from the first to the second; or more of them with a gap between.
void joinAcross(const std::vector<std::filesystem::path>& images, const std::filesystem::path& result);

/// Puts images of one width below each other; an orange line says that something is left out between them.
void joinDown(const std::vector<std::filesystem::path>& images, const std::filesystem::path& result);

/// A number to put on an image.
struct Mark
{
    int number = 0;
    Point place; ///< of the middle, in pixels of the image
};

/// Puts numbers on an image, in its place.
void addMarks(const std::filesystem::path& image, const std::vector<Mark>& marks);
