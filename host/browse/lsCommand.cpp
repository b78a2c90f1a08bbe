#include "arguments.h"
#include "commands.h"
#include "listing.h"

#include <algorithm>

namespace Qv {

namespace {

struct Options {
  std::string scheme;
  std::string path;
  std::string filter;
  bool unsorted = false;
};

ExitStatus listChildren(Options const& options, Output& output) {
  RCShdPtr<BrBrowsable> const item = findItem(options.scheme, options.path);
  Listing listing =
      listChildren(*item, options.filter == "items" ? ItemsOnly : AllChildren, !options.unsorted);
  Output::Row titles;
  for (RCShdPtr<BrAttrib> const& column : listing.columns)
    titles.push_back(column->getName());

  if (output.isJson()) {
    Json json = Json::array();
    for (auto const& [child, cells] : listing.rows) {
      Json& row = json.emplace_back(Json::object());
      row["path"] = child->getPath();
      for (std::size_t column = 0; column < titles.size(); ++column)
        row["columns"][titles[column]] = cells[column];
    }
    output.printJson(json);
  } else {
    std::vector<Output::Row> rows;
    for (Listing::Row& row : listing.rows)
      rows.push_back(std::move(row.cells));
    output.printTable(titles, std::move(rows));
  }
  return Success;
}

} // namespace

void addLsCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("ls", "List the children of an item", &listChildren);
  addScheme(command, options.scheme)->required();
  addPath(command, options.path);
  command.add_flag("--unsorted", options.unsorted, "Keep the order of the scheme");
  command
      .add_option("--filter", options.filter,
                  "Which children: all, or those at the scheme's item depth")
      ->check(CLI::IsMember({"all", "items"}))
      ->option_text("all|items");
}

} // namespace Qv
