#include "scanResult.h"

#include <algorithm>

namespace Qv {

namespace {

/// All texts of a result, in the order in which they are written.
template <class Result> auto textsOf(Result& result) {
  auto& [name, explanation, origin] = result.infoTexts;
  return std::array{&result.failure, &result.category, &name,
                    &explanation,    &origin,          &result.tooltip};
}

} // namespace

void ScanResult::appendTo(std::string& bytes) const {
  for (std::string const* const text : textsOf(*this))
    appendText(bytes, *text);
}

std::optional<ScanResult> ScanResult::takeFrom(std::string_view& bytes) {
  ScanResult result;
  for (std::string* const text : textsOf(result)) {
    std::optional<std::string_view> const taken = takeText(bytes);
    if (!taken)
      return std::nullopt;
    *text = *taken;
  }
  bool const known = std::find(PluginCategories.begin(), PluginCategories.end(), result.category) !=
                     PluginCategories.end();
  if (result.failure.empty() && !known)
    return std::nullopt;
  return result;
}

void appendText(std::string& bytes, std::string_view text) {
  bytes += text;
  bytes += '\0';
}

std::optional<std::string_view> takeText(std::string_view& bytes) {
  std::size_t const end = bytes.find('\0');
  if (end == std::string_view::npos)
    return std::nullopt;
  std::string_view const text = bytes.substr(0, end);
  bytes.remove_prefix(end + 1);
  return text;
}

} // namespace Qv
