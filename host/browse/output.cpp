#include "output.h"

#include "hostError.h"
#include "hostImage.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace Qv {

namespace {

/// The number of characters in UTF-8 text.
std::size_t width(std::string const& text) {
  return std::size_t(std::count_if(text.begin(), text.end(),
                                   [](unsigned char byte) { return (byte & 0xC0) != 0x80; }));
}

} // namespace

void writeText(std::string const& text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
    throw HostError(fmt::format("cannot write the result: {}", std::strerror(errno)));
}

Json describeImage(RCShdPtr<WsManagedImage> const& image) {
  RCShdPtr<HostImage> const hostImage = image.dynamicCast<HostImage>();
  if (!hostImage)
    return nullptr;
  return {{"file", hostImage->getName()},
          {"width", hostImage->getWidth()},
          {"height", hostImage->getHeight()}};
}

std::string imageText(Json const& image) {
  if (image.is_null())
    return "none";
  return fmt::format("{} ({} x {})", image["file"].get<std::string>(), image["width"].dump(),
                     image["height"].dump());
}

void printJson(Json const& json) {
  writeText(json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

void flushOutput() {
  if (std::fflush(stdout) != 0)
    throw HostError(fmt::format("cannot write the result: {}", std::strerror(errno)));
}

void printProblem(std::string const& problem) {
  std::fputs(fmt::format("qvbrowse: {}\n", printable(problem)).c_str(), stderr);
}

Terminal::Terminal() : colours_(isatty(STDOUT_FILENO) && !std::getenv("NO_COLOR")) {}

std::string Terminal::styled(fmt::text_style style, std::string const& text) const {
  return colours_ ? fmt::format(style, "{}", text) : text;
}

void Terminal::printTable(std::vector<std::string> const& heading,
                          std::vector<std::vector<std::string>> rows) const {
  rows.insert(rows.begin(), heading);
  std::vector<std::size_t> widths(heading.size());
  for (std::vector<std::string>& row : rows)
    for (std::size_t column = 0; column < row.size(); ++column) {
      row[column] = printable(row[column]);
      widths[column] = std::max(widths[column], width(row[column]));
    }
  for (std::vector<std::string> const& row : rows) {
    fmt::text_style const style = &row == &rows.front() ? fmt::emphasis::bold : fmt::text_style();
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
      line += styled(style, row[column]);
      line.append(widths[column] - width(row[column]) + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    writeText(line + "\n");
  }
}

char const* yesOrNo(bool value) { return value ? "yes" : "no"; }

std::string printable(std::string const& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    char const character = text[at];
    auto const byte = static_cast<unsigned char>(character);
    auto const next = static_cast<unsigned char>(at + 1 < text.size() ? text[at + 1] : 0);
    // The control characters above ASCII are two bytes of UTF-8.
    if (byte == 0xC2 && next >= 0x80 && next < 0xA0)
      result += fmt::format("\\x{:02x}", text[++at] & 0xFF);
    else if (character == '\n')
      result += "\\n";
    else if (byte < 0x20 || byte == 0x7F)
      result += fmt::format("\\x{:02x}", byte);
    else
      result += character;
  }
  return result;
}

} // namespace Qv
