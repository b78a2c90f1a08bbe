#pragma once

#include "rcShdPtr.h"
#include "wsManagedImage.h"

#include <fmt/color.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace Qv {

using Json = nlohmann::ordered_json;

/// Writes text on stdout. @throws HostError when that fails.
void writeText(std::string const& text);

/// Writes formatted text on stdout. @throws HostError when that fails.
template <class... Args> void printText(fmt::format_string<Args...> format, Args const&... values) {
  writeText(fmt::vformat(format, fmt::make_format_args(values...)));
}

/// What is known of an image; null when there is none.
Json describeImage(RCShdPtr<WsManagedImage> const& image);
std::string imageText(Json const& image);

/// Writes JSON on stdout. Names come from files: bytes that are no UTF-8 are replaced.
void printJson(Json const& json);

/// Hands all that was printed to whoever reads it. @throws HostError when that fails.
void flushOutput();

/// While it lives, what is written on a terminal goes through a pager: the one that PAGER names,
/// none when it is empty, and less when it is not set. One at a time.
class Paging {
public:
  Paging();
  ~Paging();
  Paging(Paging const&) = delete;
  Paging& operator=(Paging const&) = delete;

  /// Waits until the person has left the pager. @throws HostError when there is no such pager.
  void end();
};

/// Says on stderr what went wrong; what cannot be written there is lost.
void printProblem(std::string const& problem);

/// Text on stdout for a person.
class Terminal {
public:
  /// Colours are used on a terminal only, and never where NO_COLOR is set.
  Terminal();

  /// The text in a style, or as it is where there are no colours.
  std::string styled(fmt::text_style style, std::string const& text) const;
  /// Writes rows with their columns aligned, under a heading. A cell holds plain text of any
  /// characters.
  void printTable(std::vector<std::string> const& heading,
                  std::vector<std::vector<std::string>> rows) const;

private:
  bool colours_;
};

char const* yesOrNo(bool value);

/// The text with escapes for control characters, so that no name can steer the terminal, and for
/// bytes that are no UTF-8.
std::string printable(std::string const& text);

} // namespace Qv
