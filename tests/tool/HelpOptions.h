#pragma once

#include <set>
#include <string>
#include <string_view>

/// Options as they are written, such as "-m" and "--modbus".
using Options = std::set<std::string>;

/// The options that a text names, each where a word begins.
Options optionsIn(std::string_view text);

/// The options that the help of a word offers; those of the program itself for the empty word.
Options optionsOfHelp(const std::string& word);

/// Those that begin with two hyphens.
Options longOnes(const Options& options);
