#include "safeText.h"

#include <fmt/format.h>
#include <utf8proc.h>

namespace Qv {

std::string escaped(std::string const& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    utf8proc_int32_t character = 0;
    utf8proc_ssize_t const length =
        utf8proc_iterate(reinterpret_cast<utf8proc_uint8_t const*>(text.data() + at),
                         utf8proc_ssize_t(text.size() - at), &character);
    if (length < 0)
      character = static_cast<unsigned char>(text[at]);
    std::size_t const size = length < 0 ? 1 : std::size_t(length);
    if (character == '\n')
      result += "\\n";
    else if (length < 0 || utf8proc_category(character) == UTF8PROC_CATEGORY_CC)
      result += fmt::format("\\x{:02x}", character);
    else
      result.append(text, at, size);
    at += size;
  }
  return result;
}

} // namespace Qv
