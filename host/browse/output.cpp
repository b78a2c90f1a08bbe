#include "output.h"

#include "safeText.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utf8proc.h>
#include <utility>

namespace Qv {

namespace {

/// How many columns of a terminal escaped text takes.
std::size_t width(std::string const& text) {
  std::size_t columns = 0;
  auto const* rest = reinterpret_cast<utf8proc_uint8_t const*>(text.c_str());
  while (*rest) {
    utf8proc_int32_t character = 0;
    rest += utf8proc_iterate(rest, -1, &character);
    columns += std::size_t(utf8proc_charwidth(character));
  }
  return columns;
}

[[noreturn]] void throwWriteFailure() {
  throw std::system_error(errno, std::generic_category(), "cannot write the result");
}

} // namespace

Terminal Terminal::ofStandardOutput() {
  bool const present = isatty(STDOUT_FILENO);
  return {present, present && !std::getenv("NO_COLOR")};
}

Output::Output(Terminal terminal, bool json, bool paged)
    : terminal_(terminal), json_(json), paged_(paged && !json && terminal.present) {}

void Output::begin() {
  if (std::exchange(begun_, true))
    return;
  struct stat info = {};
  // A file leaves the terminal to the progress line.
  if (fstat(STDOUT_FILENO, &info) != 0 || !S_ISREG(info.st_mode))
    progress_.stop();
  if (paged_)
    pager_ = Pager::start();
}

void Output::write(std::string const& text) {
  begin();
  if (pager_)
    pager_->write(text);
  else if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
    throwWriteFailure();
}

void Output::printJson(Json const& json) {
  write(json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

void Output::printTable(Row const& heading, std::vector<Row> rows) {
  rows.insert(rows.begin(), heading);
  std::vector<std::size_t> widths(heading.size());
  for (Row& row : rows)
    for (std::size_t column = 0; column < row.size(); ++column) {
      row[column] = escaped(row[column]);
      widths[column] = std::max(widths[column], width(row[column]));
    }
  for (Row const& row : rows) {
    fmt::text_style const style = &row == &rows.front() ? fmt::emphasis::bold : fmt::text_style();
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
      line += styled(style, row[column]);
      line.append(widths[column] - width(row[column]) + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    write(line + "\n");
  }
}

void Output::printList(Json const& elements, Row const& heading,
                       std::function<Row(Json const&)> const& describe) {
  if (json_)
    return printJson(elements);
  std::vector<Row> rows;
  std::transform(elements.begin(), elements.end(), std::back_inserter(rows), describe);
  printTable(heading, std::move(rows));
}

std::string Output::styled(fmt::text_style style, std::string const& text) const {
  return terminal_.colours ? fmt::format(style, "{}", text) : text;
}

void Output::finish() {
  if (pager_)
    std::exchange(pager_, nullptr)->finish();
  else if (std::fflush(stdout) != 0)
    throwWriteFailure();
}

void Output::printProblem(std::string const& problem) {
  progress_.erase();
  Qv::printProblem(problem);
}

void printProblem(std::string const& problem) {
  std::fputs(fmt::format("qvbrowse: {}\n", escaped(problem)).c_str(), stderr);
}

} // namespace Qv
