#include "pluginCache.h"

#include "hostError.h"
#include "readFile.h"

#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// What the file starts with. The number goes up with every change of the file or of what is kept
/// of a plug-in.
constexpr std::string_view Format = "qvbrowse plug-ins 3";

/// What tells whether a plug-in file is still the same: its size and when it was modified. To be
/// taken before the plug-in is read. A file that is missing has a stamp as well.
std::string stampOf(fs::path const& plugin) {
  struct stat info = {};
  stat(plugin.c_str(), &info);
  return fmt::format("{} {}.{:09}", info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec);
}

} // namespace

fs::path PluginCache::getUserFile() {
  char const* const cache = std::getenv("XDG_CACHE_HOME");
  char const* const home = std::getenv("HOME");
  fs::path directory = cache ? cache : "";
  // A relative one is to be ignored.
  if (!directory.is_absolute())
    directory = home && *home ? fs::path(home) / ".cache" : "";
  return directory.empty() ? fs::path() : directory / "qvbrowse" / "plugins";
}

PluginCache::PluginCache(fs::path file) : file_(std::move(file)) {
  try {
    load();
  } catch (HostError const&) {
    // None, then.
  }
}

void PluginCache::load() {
  std::string const text = readFile(file_);
  std::string_view rest = text;
  if (takeText(rest) != Format)
    return;
  while (!rest.empty()) {
    std::optional<std::string_view> const plugin = takeText(rest);
    std::optional<std::string_view> const stamp = takeText(rest);
    std::optional<ScanResult> result = ScanResult::takeFrom(rest);
    if (!result)
      return kept_.clear();
    kept_[std::string(*plugin)] = {std::string(*stamp), std::move(*result), true};
  }
}

std::vector<PluginCache::Entry> PluginCache::read(std::vector<fs::path> const& plugins, bool retry,
                                                  Scan const& scan) {
  std::vector<fs::path> unread;
  std::map<std::string, std::string> stamps;
  for (fs::path const& plugin : plugins) {
    std::string stamp = stampOf(plugin);
    auto const found = kept_.find(plugin);
    bool const known = found != kept_.end() && found->second.stamp == stamp;
    if (known && !(retry && found->second.cached && !found->second.result.failure.empty()))
      continue;
    unread.push_back(plugin);
    stamps[plugin] = std::move(stamp);
  }
  if (!unread.empty()) {
    for (auto& [plugin, result] : scan(unread))
      kept_[plugin] = {std::move(stamps[plugin]), std::move(result), false};
    save();
  }
  std::vector<Entry> entries;
  for (fs::path const& plugin : plugins) {
    Kept const& kept = kept_.at(plugin);
    entries.push_back({plugin, kept.result, kept.cached});
  }
  return entries;
}

void PluginCache::save() const {
  if (file_.empty())
    return;
  std::error_code error;
  fs::create_directories(file_.parent_path(), error);
  std::string temporary = file_.string() + "-XXXXXX";
  int const descriptor = mkstemp(temporary.data());
  if (descriptor < 0)
    return;
  close(descriptor);
  std::string text;
  appendText(text, Format);
  for (auto const& [plugin, kept] : kept_) {
    if (!fs::exists(plugin, error))
      continue;
    appendText(text, plugin);
    appendText(text, kept.stamp);
    kept.result.appendTo(text);
  }
  std::ofstream stream(temporary, std::ios::binary);
  stream << text;
  stream.close();
  if (stream)
    fs::rename(temporary, file_, error);
  if (!stream || error)
    fs::remove(temporary, error);
}

} // namespace Qv
