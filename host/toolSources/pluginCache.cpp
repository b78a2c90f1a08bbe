#include "pluginCache.h"

#include "hostError.h"
#include "hostFiles.h"

#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// What the file starts with. The number goes up with every change of the file or of what is kept
/// of a plug-in.
constexpr char Format[] = "qvbrowse plug-ins 1";

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
    entries_.clear();
  }
}

void PluginCache::load() {
  std::istringstream stream(readFile(file_));
  if (readText(stream) != Format)
    return;
  while (stream.peek() != std::istringstream::traits_type::eof()) {
    std::string const plugin = readText(stream);
    Entry& entry = entries_[plugin];
    entry.stamp = readText(stream);
    entry.reading = PluginReading::read(stream);
    entry.earlier = true;
  }
}

std::string PluginCache::getStamp(fs::path const& plugin) {
  // A file that is missing has a stamp as well.
  struct stat facts = {};
  stat(plugin.c_str(), &facts);
  return fmt::format("{} {}.{:09}", facts.st_size, facts.st_mtim.tv_sec, facts.st_mtim.tv_nsec);
}

PluginCache::Entry const* PluginCache::find(fs::path const& plugin,
                                            std::string const& stamp) const {
  auto const found = entries_.find(plugin);
  return found == entries_.end() || found->second.stamp != stamp ? nullptr : &found->second;
}

void PluginCache::keep(fs::path const& plugin, std::string const& stamp,
                       PluginReading const& reading) {
  entries_[plugin] = {stamp, reading, false};
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
  std::ofstream stream(temporary, std::ios::binary);
  stream << Format << '\0';
  for (auto const& [plugin, entry] : entries_) {
    if (!fs::exists(plugin, error))
      continue;
    stream << plugin << '\0' << entry.stamp << '\0';
    entry.reading.write(stream);
  }
  stream.close();
  if (stream)
    fs::rename(temporary, file_, error);
  if (!stream || error)
    fs::remove(temporary, error);
}

} // namespace Qv
