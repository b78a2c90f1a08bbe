#include "output.h"

#include "layout.h"
#include "safeText.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <numeric>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace Qv {

namespace {

constexpr int FormatVersion = 1;
/// Between two columns of a table.
constexpr std::size_t Gap = 2;

[[noreturn]] void throwWriteFailure() {
  throw std::system_error(errno, std::generic_category(), "cannot write the result");
}

/// Whether a variable of the environment is neither missing nor empty.
bool isSet(char const* variable) {
  char const* const value = std::getenv(variable);
  return value && *value;
}

/// A key of a value, as people read it: "Dynamic state" for "dynamicState".
std::string headingOf(std::string const& key) {
  std::string heading;
  for (char const character : key) {
    bool const startsWord =
        std::isupper(character) && !heading.empty() && std::islower(heading.back());
    heading +=
        startsWord ? std::string{' ', char(std::tolower(character))} : std::string{character};
  }
  heading.front() = char(std::toupper(heading.front()));
  return heading;
}

/// A value in a table, where the only objects are images.
std::string textOf(Json const& value) {
  if (value.is_null())
    return "";
  if (value.is_boolean())
    return value ? "yes" : "no";
  if (value.is_object())
    return fmt::format("{} ({} x {})", textOf(value["file"]), textOf(value["width"]),
                       textOf(value["height"]));
  if (!value.is_array())
    return value.is_string() ? value.get<std::string>() : value.dump();
  std::vector<std::string> texts;
  std::transform(value.begin(), value.end(), std::back_inserter(texts), &textOf);
  return fmt::format("{}", fmt::join(texts, ", "));
}

/// Makes columns narrower so that they fit: the last one, which is wrapped, down to what is
/// pleasant to read, then the widest of the others.
void fit(std::vector<std::size_t>& widths, std::size_t available) {
  constexpr std::size_t Readable = 24;
  constexpr std::size_t Least = 4;
  std::size_t const gaps = (widths.size() - 1) * Gap;
  auto total = std::accumulate(widths.begin(), widths.end(), gaps);
  for (; total > available; --total) {
    auto const widest = std::max_element(widths.begin(), widths.end() - 1);
    std::size_t& narrowed = widths.back() > Readable ? widths.back() : *widest;
    if (narrowed <= Least)
      return;
    --narrowed;
  }
}

} // namespace

Output::Output(Options const& options) : json_(options.json) {
  char const* const kind = std::getenv("TERM");
  bool const capable = isatty(STDOUT_FILENO) && (!kind || std::string_view(kind) != "dumb");
  paged_ = !options.noPager && !json_ && capable;
  coloured_ =
      options.color == "always" || (options.color == "auto" && capable && !isSet("NO_COLOR"));
  width_ = getTerminalWidth(STDOUT_FILENO);
}

void Output::setProgress(std::string const& text) {
  constexpr std::size_t Rest = 5;
  std::size_t const width = getTerminalWidth(STDERR_FILENO);
  std::string const safe = escaped(text);
  progress_.set(width > Rest ? shortened(safe, width - Rest) : safe);
}

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

void Output::printJson(Json members) {
  Json document = {{"format", FormatVersion}};
  for (auto const& [key, value] : members.items())
    document[key] = std::move(value);
  write(document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

void Output::printTable(Row const& heading, std::vector<Row> rows) {
  rows.insert(rows.begin(), heading);
  std::vector<std::size_t> widths(heading.size());
  for (Row& row : rows)
    for (std::size_t column = 0; column < row.size(); ++column) {
      row[column] = escaped(row[column]);
      widths[column] = std::max(widths[column], getWidth(row[column]));
    }
  if (width_ > 0)
    fit(widths, width_);
  for (Row const& row : rows) {
    fmt::text_style const style = &row == &rows.front() ? fmt::emphasis::bold : fmt::text_style();
    std::string line;
    std::size_t indent = 0;
    for (std::size_t column = 0; column + 1 < row.size(); ++column) {
      std::string const cell = shortened(row[column], widths[column]);
      line += styled(style, cell);
      line.append(widths[column] - getWidth(cell) + Gap, ' ');
      indent += widths[column] + Gap;
    }
    for (std::string const& part : wrapped(row.back(), widths.back())) {
      line += styled(style, part);
      line.erase(line.find_last_not_of(' ') + 1);
      write(line + "\n");
      line.assign(indent, ' ');
    }
  }
}

void Output::printTable(Keys const& columns, Json const& elements) {
  Row heading;
  std::transform(columns.begin(), columns.end(), std::back_inserter(heading), &headingOf);
  std::vector<Row> rows;
  for (Json const& element : elements) {
    Row& row = rows.emplace_back();
    for (char const* const key : columns)
      row.push_back(textOf(element.at(key)));
  }
  printTable(heading, std::move(rows));
}

void Output::printList(char const* name, Json elements, Keys const& columns) {
  if (!json_)
    return printTable(columns, elements);
  Json members;
  members[name] = std::move(elements);
  printJson(std::move(members));
}

void Output::printProperties(Json const& object) {
  std::vector<Row> rows;
  for (auto const& [key, value] : object.items()) {
    bool const isImage = value.contains("width");
    if (!value.is_structured() || isImage)
      rows.push_back({headingOf(key), textOf(value)});
    else
      for (auto const& [name, part] : value.items())
        rows.push_back({value.is_object() ? name
                        : name == "0"     ? headingOf(key)
                                          : "",
                        textOf(part)});
  }
  printTable({"Property", "Value"}, std::move(rows));
}

std::string Output::styled(fmt::text_style style, std::string const& text) const {
  return coloured_ ? fmt::format(style, "{}", text) : text;
}

void Output::finish() {
  if (pager_)
    pager_.reset();
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
