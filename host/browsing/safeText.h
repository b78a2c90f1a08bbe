#pragma once

#include <string>

namespace Qv {

/// The text with escapes for control characters, so that no name can steer a terminal or break a
/// line, and for bytes that are not UTF-8.
std::string escaped(std::string const& text);

} // namespace Qv
