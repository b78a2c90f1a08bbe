#include "arguments.h"
#include "commands.h"
#include "search.h"

namespace Qv {

namespace {

struct Options {
  std::string scheme;
  std::string text;
};

char const* nameOf(Search::Match match) {
  if (match == Search::Match::Exact)
    return "exact";
  return match == Search::Match::Prefix ? "prefix" : "substring";
}

ExitStatus searchItems(Options const& options, Output& output) {
  Search search(*findItem(options.scheme, ""), options.text);
  while (search.step())
    continue;
  Json result = Json::array();
  for (auto const& [match, label, type, path] : search.getResult())
    result.push_back({{"name", label}, {"type", type}, {"path", path}, {"match", nameOf(match)}});
  if (!result.empty() || output.isJson())
    output.printList(result, {"Type", "Name", "Path"}, [](Json const& item) -> Output::Row {
      return {item["type"], item["name"], item["path"]};
    });
  if (!result.empty())
    return Success;
  output.finish();
  output.printProblem(fmt::format("no name or label in the scheme \"{}\" contains \"{}\"",
                                  options.scheme, options.text));
  return Failure;
}

} // namespace

void addSearchCommand(Program& program) {
  auto const [command, options] = program.addCommand(
      "search", "Find the items of a scheme whose name or label contains a text", &searchItems);
  addScheme(command, options.scheme)->required();
  command.add_option("TEXT", options.text, "The text, in upper or lower case")
      ->required()
      ->check([](std::string const& text) { return text.empty() ? "the text is empty" : ""; });
}

} // namespace Qv
