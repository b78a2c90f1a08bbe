#include "layout.h"

#include <sys/ioctl.h>
#include <utf8proc.h>

namespace Qv {

namespace {

/// Removes a character from the front. @returns its columns.
std::size_t takeCharacter(std::string_view& text) {
  utf8proc_int32_t character = 0;
  auto const size = utf8proc_iterate(reinterpret_cast<utf8proc_uint8_t const*>(text.data()),
                                     utf8proc_ssize_t(text.size()), &character);
  text.remove_prefix(std::size_t(size));
  return std::size_t(utf8proc_charwidth(character));
}

/// The longest beginning that fits.
std::string_view beginningOf(std::string_view text, std::size_t columns) {
  std::string_view rest = text;
  std::size_t size = 0;
  for (std::size_t used = 0; !rest.empty() && (used += takeCharacter(rest)) <= columns;)
    size = text.size() - rest.size();
  return text.substr(0, size);
}

} // namespace

std::size_t getTerminalWidth(int descriptor) {
  winsize size = {};
  return ioctl(descriptor, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::size_t getWidth(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty())
    columns += takeCharacter(text);
  return columns;
}

std::string shortened(std::string const& text, std::size_t columns) {
  std::size_t width = getWidth(text);
  if (width <= columns)
    return text;
  std::string_view const left = beginningOf(text, columns / 2);
  std::string_view right = std::string_view(text).substr(left.size());
  while (width + 1 > columns)
    width -= takeCharacter(right);
  return std::string(left) + "…" + std::string(right);
}

std::vector<std::string> wrapped(std::string_view text, std::size_t columns) {
  std::vector<std::string> lines;
  for (;;) {
    std::size_t const fitting = beginningOf(text, columns).size();
    if (fitting == text.size())
      break;
    std::size_t const blank = text.rfind(' ', fitting);
    bool const hasBlank = blank != std::string_view::npos && blank > 0;
    lines.emplace_back(text.substr(0, hasBlank ? blank : fitting));
    text.remove_prefix(hasBlank ? blank + 1 : fitting);
  }
  lines.emplace_back(text);
  return lines;
}

} // namespace Qv
