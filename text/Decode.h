#pragma once

#include <string>
#include <string_view>

/// Turns the bytes of a text file into UTF-8 without a byte-order mark.
///
/// A byte-order mark (UTF-8, UTF-16 or UTF-32, either byte order) decides; each unit after it that belongs to no
/// character becomes one U+FFFD; the units of UTF-8 are bytes. Without a mark the bytes are UTF-8 when all of them are
/// well-formed, otherwise each byte is one character of ISO 8859-1. Bytes that need no change are handed back without a
/// copy.
std::string decodeText(std::string bytes);

/// True for bytes that begin with a byte-order mark. Only behind one does `decodeText` replace anything.
bool hasByteOrderMark(std::string_view bytes);
