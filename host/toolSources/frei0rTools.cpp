#include "frei0rTools.h"

#include <algorithm>
#include <cstdlib>
#include <fmt/format.h>
#include <set>
#include <sstream>

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// How deep the folders of vendors may be: two levels, as in the interface's examples.
constexpr int VendorDepth = 2;

fs::path wholePath(fs::path const& path) { return fs::absolute(path).lexically_normal(); }

/// A line for each parameter.
std::string describe(std::vector<PluginParameter> const& parameters) {
  std::string text;
  for (auto const& [name, type, explanation] : parameters)
    text +=
        fmt::format("{}{} ({}){}{}", text.empty() ? "" : "<br>", name.empty() ? "unnamed" : name,
                    type, explanation.empty() ? "" : ": ", explanation);
  return text;
}

} // namespace

/// The plug-in files below some places.
struct Frei0rTools::Search {
  void addPlace(fs::path const& place) {
    std::size_t const before = plugins.size() + problems.size();
    addDirectory(place, place, 0);
    if (plugins.size() + problems.size() == before)
      problems.emplace_back(fmt::format("\"{}\": no plug-in file (*.so)", place.string()), false);
  }

  void addDirectory(fs::path const& directory, fs::path const& place, int depth) {
    std::error_code error;
    // It may have another name, or be below itself.
    if (fs::path const canonical = fs::weakly_canonical(directory, error);
        !visited.insert(error ? directory : canonical).second)
      return;
    std::set<std::string> files;
    std::set<std::string> folders;
    fs::directory_iterator entries(directory, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
      std::error_code unknown;
      if (entries->path().extension() == ".so" && entries->is_regular_file(unknown))
        files.insert(entries->path());
      else if (depth < VendorDepth && entries->is_directory(unknown))
        folders.insert(entries->path());
    }
    if (error)
      problems.emplace_back(fmt::format("\"{}\": {}", directory.string(), error.message()),
                            !mayBeMissing || error != std::errc::no_such_file_or_directory);
    for (std::string const& file : files)
      plugins.push_back({.file = wholePath(file), .place = wholePath(place)});
    for (std::string const& folder : folders)
      addDirectory(folder, place, depth + 1);
  }

  bool mayBeMissing = false;
  std::vector<ToolSource::Plugin> plugins;
  std::set<fs::path> visited;
  /// Directories that cannot be searched or hold nothing, and why; and whether the user should know
  /// even if there are plug-ins elsewhere.
  std::vector<std::pair<std::string, bool>> problems;
};

ToolSource Frei0rTools::read() {
  Search search;
  if (char const* const path = std::getenv("FREI0R_PATH")) {
    std::istringstream directories(path);
    for (std::string directory; std::getline(directories, directory, ':');)
      if (!directory.empty())
        search.addPlace(directory);
  } else {
    search.mayBeMissing = true;
    if (char const* const home = std::getenv("HOME"); home && *home == '/')
      search.addPlace(fs::path(home) / ".frei0r-1" / "lib");
    search.addPlace("/usr/local/lib/frei0r-1");
    search.addPlace("/usr/lib/frei0r-1");
  }
  return read(search);
}

ToolSource Frei0rTools::read(fs::path const& directory) {
  Search search;
  search.addPlace(directory);
  return read(search);
}

ToolSource Frei0rTools::read(Search const& search) {
  std::string reasons;
  for (auto const& [problem, notable] : search.problems) {
    reasons += (reasons.empty() ? "" : "; ") + problem;
    if (notable && !search.plugins.empty())
      options_.notice("cannot search for plug-ins in " + problem);
  }
  if (search.plugins.empty())
    throw NoPluginsError("no frei0r plug-in found: " +
                         (reasons.empty() ? "FREI0R_PATH names no directory" : reasons));
  if (options_.skip)
    return {};
  std::vector<fs::path> files;
  for (ToolSource::Plugin const& plugin : search.plugins)
    files.push_back(plugin.file);
  auto const scan = [&](std::vector<fs::path> const& unread, TakeResult const& take) {
    scanPlugins(unread, options_, take);
  };
  std::vector<PluginCache::Entry> const entries = cache_.read(files, options_.retry, scan);
  auto entry = entries.begin();
  ToolSource source;
  std::set<std::string> categories;
  for (ToolSource::Plugin plugin : search.plugins) {
    auto const& [result, cached] = *entry++;
    // An earlier source has it.
    if (!files_.insert(plugin.file).second)
      continue;
    plugin.cached = cached;
    plugin.version = result.version;
    plugin.parameters = result.parameters;
    std::string const name = plugin.file.stem();
    if (auto const earlier = tools_.find(name); earlier != tools_.end()) {
      plugin.hiddenBy = earlier->second;
    } else if (!result.failure.empty()) {
      plugin.failure = result.failure;
    } else {
      plugin.tool = name;
      plugin.category = result.category;
      tools_[name] = plugin.file;
      categories.insert(result.category);
      std::string const origin = fmt::format("{}{}version {}", result.author,
                                             result.author.empty() ? "" : ", ", result.version);
      HostToolInfo info = {.name = name,
                           .category = result.category,
                           .infoTexts = {result.name, result.explanation, origin}};
      source.tools.push_back(
          {RCShdPtr<HostTool const>(new HostTool(std::move(info))), describe(result.parameters)});
    }
    source.plugins.push_back(std::move(plugin));
  }
  for (char const* const category : PluginCategories)
    if (categories.contains(category))
      source.categories.emplace_back(category);
  return source;
}

} // namespace Qv
