#include "arguments.h"

namespace Qv {

CLI::Option* addScheme(CLI::App& command, std::string& scheme) {
  return command.add_option("SCHEME", scheme, "The name of the scheme");
}

CLI::Option* addPath(CLI::App& command, std::string& path) {
  return command.add_option("PATH", path, "The path of the item; \"\" is the root");
}

CLI::Option* addPaths(CLI::App& command, std::vector<std::string>& paths) {
  // It takes all because it expects so many: as "extra arguments", "[a,b]" would be a list.
  constexpr int All = CLI::detail::expected_max_vector_size;
  return command.add_option("PATH", paths, "The path of an item")
      ->expected(All, All)
      ->allow_extra_args(false)
      ->take_all()
      ->required();
}

Items findItems(std::string const& scheme, std::vector<std::string> const& paths) {
  Items items;
  for (std::string const& path : paths)
    items.push_back(findItem(scheme, path));
  return items;
}

} // namespace Qv
