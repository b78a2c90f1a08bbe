#include "scanResult.h"

#include <algorithm>
#include <charconv>

namespace Qv {

namespace {

/// The texts of a result before its parameters, in the order in which they are written.
template <class Result> auto textsOf(Result& result) {
  return std::array{&result.failure,     &result.category, &result.name,
                    &result.explanation, &result.author,   &result.version};
}

template <class Parameter> auto textsOfParameter(Parameter& parameter) {
  return std::array{&parameter.name, &parameter.type, &parameter.explanation};
}

} // namespace

void ScanResult::appendTo(std::string& bytes) const {
  for (std::string const* const text : textsOf(*this))
    appendText(bytes, *text);
  appendText(bytes, passing ? "passing" : "");
  appendText(bytes, std::to_string(parameters.size()));
  for (PluginParameter const& parameter : parameters)
    for (std::string const* const text : textsOfParameter(parameter))
      appendText(bytes, *text);
}

std::optional<ScanResult> ScanResult::takeFrom(std::string_view& bytes) {
  ScanResult result;
  bool whole = true;
  auto const take = [&](std::string* text) {
    std::optional<std::string_view> const taken = takeText(bytes);
    whole = whole && taken;
    *text = taken.value_or("");
  };
  for (std::string* const text : textsOf(result))
    take(text);
  std::string passing;
  take(&passing);
  result.passing = !passing.empty();
  std::string count;
  take(&count);
  int parameters = -1;
  std::from_chars(count.data(), count.data() + count.size(), parameters);
  if (parameters < 0 || parameters > MostParameters)
    return std::nullopt;
  result.parameters.resize(std::size_t(parameters));
  for (PluginParameter& parameter : result.parameters)
    for (std::string* const text : textsOfParameter(parameter))
      take(text);
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
