#include "safeText.h"

#include <charconv>
#include <cstdlib>
#include <fmt/format.h>
#include <memory>
#include <stdexcept>
#include <utf8proc.h>

namespace Qv {

namespace {

utf8proc_uint8_t const* bytesOf(std::string_view text) {
  return reinterpret_cast<utf8proc_uint8_t const*>(text.data());
}

bool isVisible(utf8proc_int32_t character) {
  utf8proc_property_t const& property = *utf8proc_get_property(character);
  return !property.ignorable && property.category != UTF8PROC_CATEGORY_CC &&
         property.category != UTF8PROC_CATEGORY_CF && property.category != UTF8PROC_CATEGORY_ZL &&
         property.category != UTF8PROC_CATEGORY_ZP;
}

} // namespace

std::string escaped(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    utf8proc_int32_t character = 0;
    auto const length = utf8proc_iterate(bytesOf(text), utf8proc_ssize_t(text.size()), &character);
    std::string_view const bytes =
        text.substr(0, std::size_t(std::max<utf8proc_ssize_t>(1, length)));
    if (character == '\\')
      result += "\\\\";
    else if (character == '\n')
      result += "\\n";
    else if (length > 0 && isVisible(character))
      result += bytes;
    else
      for (char const byte : bytes)
        result += fmt::format("\\x{:02x}", static_cast<unsigned char>(byte));
    text.remove_prefix(bytes.size());
  }
  return result;
}

std::string unescaped(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    unsigned int byte = 0;
    std::string_view const digits = text.substr(std::min<std::size_t>(2, text.size()), 2);
    char const* const end = digits.data() + digits.size();
    std::size_t size = 2;
    if (text.starts_with("\\\\")) {
      byte = '\\';
    } else if (text.starts_with("\\n")) {
      byte = '\n';
    } else if (text.starts_with("\\x") && digits.size() == 2 &&
               std::from_chars(digits.data(), end, byte, 16).ptr == end && byte > 0) {
      size = 4;
    } else {
      byte = static_cast<unsigned char>(text.front());
      size = 1;
    }
    result += char(byte);
    text.remove_prefix(size);
  }
  return result;
}

std::string folded(std::string_view text) {
  utf8proc_uint8_t* result = nullptr;
  utf8proc_ssize_t const size =
      utf8proc_map(bytesOf(text), utf8proc_ssize_t(text.size()), &result,
                   utf8proc_option_t(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD));
  if (size == UTF8PROC_ERROR_INVALIDUTF8)
    return folded(escaped(text));
  if (size < 0)
    throw std::runtime_error(utf8proc_errmsg(size));
  std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> const owner(result, &std::free);
  return std::string(reinterpret_cast<char const*>(result), std::size_t(size));
}

} // namespace Qv
