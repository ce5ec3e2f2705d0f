#pragma once

#include "map/RegisterMap.h"

#include <filesystem>
#include <string>
#include <string_view>

/// Writing the whole map for other tools and for people. Only heads of used slots are exported.

/// What an export looks like.
enum class ExportFormat
{
    Csv, ///< one line for each object, fields joined by commas without quoting
    Text ///< a report in fixed columns, one section for each space
};

/// The format that a file name asks for: CSV when it ends with ".csv" in any letter case, else the text report.
ExportFormat exportFormatFor(std::string_view path);

/// The map as comma-separated values: a header line, then the objects in space and address order.
/// @return UTF-8 without byte-order mark, every line ended as usual on this platform
std::string exportCsv(const RegisterMap& map);

/// The map as a text report: two title lines, then a section for each space, empty spaces included.
///
/// Columns are padded by characters. A tagname longer than its column is not cut and pushes the description along.
/// @return UTF-8 without byte-order mark, every line ended as usual on this platform
std::string exportTextReport(const RegisterMap& map);

/// Writes the map in the format that the file's name asks for, over a file that is there already.
/// @return false when the file could not be written; an old one then keeps its contents
bool exportMap(const RegisterMap& map, const std::filesystem::path& path);
