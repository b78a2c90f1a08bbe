#pragma once

#include <fmt/color.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace Qv {

using Json = nlohmann::ordered_json;

/// Writes JSON on stdout. Names come from files: bytes that are no UTF-8 are replaced.
void printJson(Json const& json);

/// Hands all that was printed to whoever reads it. @throws HostError when that fails.
void flushOutput();

/// Text on stdout for a person.
class Terminal {
public:
  /// Colours are used on a terminal only, and never where NO_COLOR is set.
  Terminal();

  /// The text in a style, or as it is where there are no colours.
  std::string styled(fmt::text_style style, std::string const& text) const;
  /// Writes rows with their columns aligned, under a heading; cells hold plain text.
  void printTable(std::vector<std::string> const& heading,
                  std::vector<std::vector<std::string>> const& rows) const;

private:
  bool colours_;
};

char const* yesOrNo(bool value);

/// The text with control characters as escapes, so that no name can steer the terminal.
std::string printable(std::string const& text);

} // namespace Qv
