#pragma once

#include "json.h"
#include "pager.h"
#include "progress.h"

#include <fmt/color.h>
#include <functional>
#include <string>
#include <vector>

namespace Qv {

/// What is at the other end of the standard output.
struct Terminal {
  static Terminal ofStandardOutput();

  /// Whether it is a terminal at all.
  bool present;
  /// Never where NO_COLOR is set.
  bool colours;
};

/// Where a command writes its result: the standard output, through a pager where there is one.
/// Until then, a progress line says what is under way. What cannot be written throws
/// std::runtime_error.
class Output {
public:
  using Row = std::vector<std::string>;

  /// @param json whether commands write JSON, and without a pager then.
  Output(Terminal terminal, bool json, bool paged);

  bool isJson() const { return json_; }

  void setProgress(std::string const& text) { progress_.set(text); }
  /// Reports on stderr what went wrong, beside the progress line.
  void printProblem(std::string const& problem);

  void write(std::string const& text);
  template <class... Args> void print(fmt::format_string<Args...> format, Args const&... values) {
    write(fmt::vformat(format, fmt::make_format_args(values...)));
  }
  /// Bytes that are not UTF-8 are replaced: names come from files.
  void printJson(Json const& json);
  /// Prints aligned columns under a heading. A cell holds any characters.
  void printTable(Row const& heading, std::vector<Row> rows);
  /// Prints the elements of an array: as JSON, or as a table with one row for each.
  void printList(Json const& elements, Row const& heading,
                 std::function<Row(Json const&)> const& describe);

  /// The text in a style, or as it is where there are no colours.
  std::string styled(fmt::text_style style, std::string const& text) const;

  /// Hands over all that was written, and waits until the user has read it.
  void finish();

private:
  void begin();

  Terminal terminal_;
  bool json_;
  bool paged_;
  bool begun_ = false;
  std::unique_ptr<Pager> pager_;
  Progress progress_;
};

/// Reports on stderr what went wrong.
void printProblem(std::string const& problem);

inline char const* yesOrNo(bool value) { return value ? "yes" : "no"; }

} // namespace Qv
