#include "arguments.h"
#include "commands.h"
#include "search.h"
#include "values.h"

#include <array>

namespace Qv {

namespace {

struct Options {
  ItemArguments items;
  std::string text;
  bool paths = false;
};

constexpr std::array Places = {"name", "label", "detail", "tooltip"};
constexpr std::array Matches = {"exact", "prefix", "substring"};

ExitStatus searchItems(Options const& options, Session const& /*session*/, Output& output) {
  Search search(*findItem(*options.items.scheme, ""), options.text);
  while (search.step())
    continue;
  std::vector<Search::Found> const result = search.getResult();
  Json items = Json::array();
  for (auto const& [item, place, match, title, text] : result) {
    if (options.paths)
      printPath(*item, output);
    items.push_back(toJson(*item));
    items.back().update({{"match", Matches[std::size_t(match)]},
                         {"in", Places[std::size_t(place)]},
                         {"field", place == Search::Place::Detail ? Json(title) : Json(nullptr)},
                         {"text", text}});
  }
  if (!options.paths && (!result.empty() || output.isJson()))
    output.printList("items", items, {"type", "name", "path", "in", "field", "text"});
  if (!result.empty())
    return Success;
  output.finish();
  output.printProblem(fmt::format("no name or text in the scheme \"{}\" contains \"{}\"",
                                  *options.items.scheme, options.text));
  return Failure;
}

} // namespace

void addSearchCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("search", "Find items by name or by any text shown of them", &searchItems);
  addScheme(program, command, options.items)->required();
  command.add_option("TEXT", options.text, "The text, in upper or lower case")
      ->required()
      ->check([](std::string const& text) { return text.empty() ? "the text is empty" : ""; });
  addPathsFlag(command, options.paths);
}

} // namespace Qv
