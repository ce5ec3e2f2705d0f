#pragma once

#include "map/RegisterMap.h"
#include "review/LineOwners.h"

/// What saving would change though nothing is wrong: short forms, other spellings, other places, other bytes.

/// Appends a warning for each line that saving writes in another form. Lines about which something is said already
/// are left out: mending that may change their form too.
/// @param owners  of these lines; a line whose first register another one has taken is not written at all
/// @param map     as the lines fill it, validated
void appendOtherForms(Findings& findings, const PlacedLines& lines, const LineOwners& owners, const RegisterMap& map);

/// Appends a warning for the first line that saving writes before the line above it.
void appendFirstOutOfOrder(Findings& findings, const PlacedLines& lines);

/// Appends a warning when saving writes other bytes for the same text: another encoding, other line ends.
/// Of several lines with other ends the first one is told.
/// @param text         what the file's bytes were decoded to: UTF-8 without a byte-order mark
/// @param bytesDiffer  true when the file holds other bytes than the text: a mark, or another encoding
void appendEncoding(Findings& findings, std::string_view text, bool bytesDiffer);
