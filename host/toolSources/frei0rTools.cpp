#include "frei0rTools.h"

#include "hostError.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// Absolute paths.
std::vector<fs::path> findPlugins(fs::path const& directory) {
  std::vector<fs::path> files;
  try {
    for (fs::directory_entry const& entry :
         fs::directory_iterator(fs::absolute(directory).lexically_normal()))
      if (entry.path().extension() == ".so")
        files.push_back(entry.path());
  } catch (fs::filesystem_error const& error) {
    throw HostError(fmt::format("cannot read the plug-in directory \"{}\": {}", directory.string(),
                                error.code().message()));
  }
  if (files.empty())
    throw HostError(fmt::format("the plug-in directory \"{}\" holds no plug-in file (*.so)",
                                directory.string()));
  // Of one directory, the texts have the order of the paths, and are faster to compare.
  std::sort(files.begin(), files.end(), [](fs::path const& left, fs::path const& right) {
    return left.native() < right.native();
  });
  return files;
}

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

bool hasFrei0rTools(fs::path const& directory) {
  try {
    findPlugins(directory);
    return true;
  } catch (HostError const&) {
    return false;
  }
}

ToolSource readFrei0rTools(fs::path const& directory, PluginCache& cache,
                           ScanOptions const& options) {
  ToolSource source;
  source.origin = directory;
  auto const scan = [&](std::vector<fs::path> const& files) { return scanPlugins(files, options); };
  std::set<std::string> categories;
  fs::path const place = fs::absolute(directory).lexically_normal();
  for (auto& [file, result, cached] : cache.read(findPlugins(directory), options.retry, scan)) {
    bool const isTool = result.failure.empty();
    source.plugins.push_back({.file = file,
                              .place = place,
                              .failure = result.failure,
                              .hiddenBy = {},
                              .cached = cached,
                              .tool = isTool ? file.stem().string() : "",
                              .category = result.category,
                              .version = result.version,
                              .parameters = result.parameters});
    if (!isTool)
      continue;
    categories.insert(result.category);
    std::string const origin = fmt::format("{}{}version {}", result.author,
                                           result.author.empty() ? "" : ", ", result.version);
    HostToolInfo info = {.name = file.stem(),
                         .category = result.category,
                         .infoTexts = {result.name, result.explanation, origin}};
    source.tools.push_back(
        {RCShdPtr<HostTool const>(new HostTool(std::move(info))), describe(result.parameters)});
  }
  for (char const* const category : PluginCategories)
    if (categories.contains(category))
      source.categories.emplace_back(category);
  return source;
}

} // namespace Qv
