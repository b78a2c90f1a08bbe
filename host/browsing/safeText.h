#pragma once

#include <string>
#include <string_view>

namespace Qv {

/// The text with an escape for whatever a reader cannot see as it is, so that no name can steer a
/// terminal, break a line or pass for another name: `\\` for a backslash, `\n` for a line feed, and
/// `\xHH` for each byte of other control characters, of bidirectional, invisible and
/// line-separating ones, and of what is not UTF-8.
std::string escaped(std::string_view text);
/// The text of which escaped() makes this. A backslash that starts none of its escapes stays.
std::string unescaped(std::string_view text);

/// The text for comparing without regard to case and to how letters are composed.
std::string folded(std::string_view text);

} // namespace Qv
