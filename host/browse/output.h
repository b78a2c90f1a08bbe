#pragma once

#include "pager.h"
#include "progress.h"

#include <fmt/color.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace Qv {

/// Keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

/// Where a command writes its result: the standard output, through a pager where there is one.
/// Until then, a progress line says what is under way. What cannot be written throws
/// std::runtime_error.
///
/// A command describes its result as JSON, from which tables are made as well: a column or a
/// property is the key of a value, which is also its heading.
class Output {
public:
  using Row = std::vector<std::string>;
  using Keys = std::vector<char const*>;

  struct Options {
    /// Whether commands write JSON, and without a pager then.
    bool json = false;
    bool noPager = false;
    /// "always", "never" or "auto": on a terminal that has them, unless NO_COLOR is set.
    std::string color = "auto";
  };

  explicit Output(Options const& options);

  bool isJson() const { return json_; }

  void setProgress(std::string const& text);
  /// Reports on stderr what went wrong, beside the progress line.
  void printProblem(std::string const& problem);

  void write(std::string const& text);
  template <class... Args> void print(fmt::format_string<Args...> format, Args const&... values) {
    write(fmt::vformat(format, fmt::make_format_args(values...)));
  }
  /// Prints an object, with the version of the format. Bytes that are not UTF-8 are replaced: names
  /// come from files.
  void printJson(Json members);
  /// Prints aligned columns under a heading. A cell holds any characters.
  void printTable(Row const& heading, std::vector<Row> rows);
  void printTable(Keys const& columns, Json const& elements);
  /// Prints an array: as JSON under `name`, or as a table.
  void printList(char const* name, Json elements, Keys const& columns);
  /// Prints the members of an object and of objects in it.
  void printProperties(Json const& object);

  /// The text in a style, or as it is where there are no colours.
  std::string styled(fmt::text_style style, std::string const& text) const;

  /// Hands over all that was written, and waits until the user has read it.
  void finish();

private:
  void begin();

  bool json_;
  bool paged_;
  bool coloured_;
  std::size_t width_;
  bool begun_ = false;
  std::unique_ptr<Pager> pager_;
  Progress progress_;
};

/// Reports on stderr what went wrong.
void printProblem(std::string const& problem);

} // namespace Qv
