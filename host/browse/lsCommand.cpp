#include "arguments.h"
#include "commands.h"
#include "listing.h"
#include "values.h"

#include <algorithm>

namespace Qv {

namespace {

struct Options {
  ItemArguments items;
  std::string filter;
  bool unsorted = false;
  bool paths = false;
};

void printTable(Listing listing, Output& output) {
  Output::Row titles;
  for (RCShdPtr<BrAttrib> const& column : listing.columns)
    titles.push_back(column->getName());
  bool const named = std::all_of(listing.rows.begin(), listing.rows.end(),
                                 [](Listing::Row const& row) { return showsPath(*row.item); });
  if (!named)
    titles.emplace_back("Path");
  std::vector<Output::Row> rows;
  for (Listing::Row& row : listing.rows) {
    Output::Row& cells = rows.emplace_back(std::move(row.cells));
    if (!named)
      cells.push_back(row.item->getPath());
  }
  output.printTable(titles, std::move(rows));
}

ExitStatus listChildren(Options const& options, Session const& /*session*/, Output& output) {
  RCShdPtr<BrBrowsable> const item = findItems(options.items).front();
  Listing listing =
      listChildren(*item, options.filter == "items" ? ItemsOnly : AllChildren, !options.unsorted);
  Json json = Json::array();
  for (Listing::Row const& row : listing.rows)
    if (options.paths)
      printPath(*row.item, output);
    else if (output.isJson())
      json.push_back(toJson(*row.item));
  if (output.isJson())
    output.printJson({{"items", json}});
  else if (!options.paths)
    printTable(std::move(listing), output);
  return Success;
}

} // namespace

void addLsCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("ls", "List the children of an item", &listChildren);
  addScheme(program, command, options.items)->required();
  addPath(command, options.items);
  addPathsFlag(command, options.paths);
  command.add_flag("--unsorted", options.unsorted, "Keep the order of the scheme");
  command
      .add_option("--filter", options.filter, "All children, or those at the scheme's item depth")
      ->check(CLI::IsMember({"all", "items"}))
      ->option_text("all|items");
}

} // namespace Qv
