#include "arguments.h"

#include "lookup.h"
#include "piBrowserSchemes.h"
#include "safeText.h"

#include <algorithm>

namespace Qv {

namespace {

CLI::Option* addPathOption(CLI::App& command, ItemArguments& arguments, char const* help) {
  command.add_flag("--unlisted", arguments.unlisted, "Take a path even if no item of it is listed");
  // As "extra arguments", "[a,b]" would be a list.
  return command.add_option("PATH", arguments.paths, help)->allow_extra_args(false);
}

} // namespace

CLI::Option* addScheme(Program& program, CLI::App& command, ItemArguments& arguments) {
  return command.add_option("SCHEME", arguments.scheme, "The name of the scheme")
      ->each([&program](std::string const& scheme) {
        if (scheme != PiBrowserSchemes::PluginToolScheme)
          program.setPluginUse(PluginUse::None);
      });
}

void addPath(CLI::App& command, ItemArguments& arguments) {
  addPathOption(command, arguments, "The path of the item; by default the root, \"\"")->expected(1);
}

void addPaths(CLI::App& command, ItemArguments& arguments) {
  constexpr int All = CLI::detail::expected_max_vector_size;
  addPathOption(command, arguments, "The paths of items; \"\" is the root")
      ->expected(All, All)
      ->take_all()
      ->required();
}

CLI::Option* addPathsFlag(CLI::App& command, bool& paths) {
  return command.add_flag("--paths", paths, "Print paths alone, one a line")
      ->excludes(command.get_parent()->get_option("--json"));
}

Items findItems(ItemArguments const& arguments) {
  std::vector<std::string> paths = arguments.paths;
  if (paths.empty())
    paths.emplace_back();
  std::transform(paths.begin(), paths.end(), paths.begin(), &unescaped);
  if (!arguments.unlisted)
    return findListedItems(*arguments.scheme, paths);
  Items items;
  for (std::string const& path : paths)
    items.push_back(findItem(*arguments.scheme, path));
  return items;
}

void printPath(BrBrowsable const& item, Output& output) {
  if (std::string const path = item.getPath(); !path.empty())
    output.print("{}\n", escaped(path));
}

} // namespace Qv
