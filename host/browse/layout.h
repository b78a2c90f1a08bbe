#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Qv {

// How text lies on a terminal. The texts are escaped: they are UTF-8 without control characters.

/// How many columns a terminal has; 0 where there is no terminal or no limit.
std::size_t getTerminalWidth(int descriptor);

/// How many columns the text takes.
std::size_t getWidth(std::string_view text);
/// The text, with as much left out in the middle as has to be.
std::string shortened(std::string const& text, std::size_t columns);
/// The text in lines, broken between words where it can be.
std::vector<std::string> wrapped(std::string_view text, std::size_t columns);

} // namespace Qv
