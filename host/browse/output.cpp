#include "output.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace Qv {

namespace {

/// The number of characters in UTF-8 text.
std::size_t width(std::string const& text) {
  return std::size_t(std::count_if(text.begin(), text.end(),
                                   [](unsigned char byte) { return (byte & 0xC0) != 0x80; }));
}

} // namespace

void printJson(Json const& json) {
  fmt::print("{}\n", json.dump(2, ' ', false, Json::error_handler_t::replace));
}

Terminal::Terminal() : colours_(isatty(STDOUT_FILENO) && !std::getenv("NO_COLOR")) {}

std::string Terminal::styled(fmt::text_style style, std::string const& text) const {
  return colours_ ? fmt::format(style, "{}", text) : text;
}

void Terminal::printTable(std::vector<std::string> const& heading,
                          std::vector<std::vector<std::string>> const& rows) const {
  std::vector<std::size_t> widths;
  for (std::string const& title : heading)
    widths.push_back(width(title));
  for (std::vector<std::string> const& row : rows)
    for (std::size_t column = 0; column < row.size(); ++column)
      widths[column] = std::max(widths[column], width(row[column]));

  auto const print = [&](std::vector<std::string> const& row, fmt::text_style style) {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
      line += styled(style, row[column]);
      line.append(widths[column] - width(row[column]) + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    fmt::print("{}\n", line);
  };
  print(heading, fmt::emphasis::bold);
  for (std::vector<std::string> const& row : rows)
    print(row, {});
}

char const* yesOrNo(bool value) { return value ? "yes" : "no"; }

std::string printable(std::string const& text) {
  std::string result;
  for (char const character : text) {
    auto const byte = static_cast<unsigned char>(character);
    if (character == '\n')
      result += "\\n";
    else if (byte < 0x20 || byte == 0x7F)
      result += fmt::format("\\x{:02x}", byte);
    else
      result += character;
  }
  return result;
}

} // namespace Qv
