#pragma once

#include "map/RegisterEntry.h"

#include <string>
#include <string_view>

/// Marks a tagname in files as one that the Modbus master may write.
constexpr std::string_view writeSuffix = ".1";

/// Appends the tagname as files carry it: with ".1" after it when the object may be written.
inline void appendPublishedTagname(std::string& text, const RegisterEntry& entry)
{
    text += entry.tagname.view();
    if (entry.write)
        text += writeSuffix;
}
