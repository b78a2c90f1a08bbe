#include "scanResult.h"

#include <algorithm>
#include <cstdlib>

namespace Qv {

void ScanResult::appendTo(std::string& bytes) const {
  std::string const count = std::to_string(parameters.size());
  for (std::string_view const text : std::initializer_list<std::string_view>{
           failure, passing ? "passing" : "", category, name, explanation, author, version, count})
    appendText(bytes, text);
  for (PluginParameter const& parameter : parameters)
    for (std::string const* const text : {&parameter.name, &parameter.type, &parameter.explanation})
      appendText(bytes, *text);
}

std::optional<ScanResult> ScanResult::takeFrom(std::string_view& bytes) {
  bool whole = true;
  auto const take = [&] {
    std::optional<std::string_view> const text = takeText(bytes);
    whole = whole && text;
    return std::string(text.value_or(""));
  };
  ScanResult result = {.failure = take(),
                       .passing = !take().empty(),
                       .category = take(),
                       .name = take(),
                       .explanation = take(),
                       .author = take(),
                       .version = take()};
  int const parameters = std::atoi(take().c_str());
  for (int number = 0; number < std::min(parameters, MostParameters); ++number)
    result.parameters.push_back({take(), take(), take()});
  bool const known = std::find(PluginCategories.begin(), PluginCategories.end(), result.category) !=
                     PluginCategories.end();
  if (!whole || (result.failure.empty() ? !known : !result.category.empty()))
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
