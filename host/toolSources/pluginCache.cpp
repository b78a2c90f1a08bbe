#include "pluginCache.h"

#include "descriptor.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// What the file starts with. The number changes with the format, and with what a result means.
constexpr std::string_view Format = "qvbrowse plug-ins 4";

/// Tells whether a plug-in file is still the same. To be taken before the plug-in is read. A
/// missing file has a stamp as well.
std::string stampOf(fs::path const& plugin) {
  struct stat info = {};
  stat(plugin.c_str(), &info);
  return fmt::format("{} {} {} {}.{:09} {}.{:09}", info.st_dev, info.st_ino, info.st_size,
                     info.st_mtim.tv_sec, info.st_mtim.tv_nsec, info.st_ctim.tv_sec,
                     info.st_ctim.tv_nsec);
}

void check(bool success) {
  if (!success)
    throw std::system_error(errno, std::generic_category());
}

/// Keeps other programs from the files of a directory for as long as it is open.
Descriptor lock(fs::path const& directory) {
  fs::create_directories(directory);
  int const number = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  flock(number, LOCK_EX);
  return Descriptor(number);
}

/// Opens a file without waiting for anybody. @returns its size.
std::size_t openFile(Descriptor& file, fs::path const& path, int flags) {
  file.reset(open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC, 0600));
  struct stat info = {};
  check(file.get() >= 0 && fstat(file.get(), &info) == 0);
  if (!S_ISREG(info.st_mode))
    throw std::runtime_error("not a regular file");
  return std::size_t(info.st_size);
}

/// Adds a text to a file of this size, whole or not at all.
void write(Descriptor const& file, std::size_t size, std::string const& text) {
  ssize_t const written = ::write(file.get(), text.data(), text.size());
  if (written == ssize_t(text.size()))
    return;
  int const reason = written < 0 ? errno : ENOSPC;
  check(ftruncate(file.get(), off_t(size)) == 0);
  throw std::system_error(reason, std::generic_category());
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

void PluginCache::use(std::function<void()> const& action) {
  if (file_.empty())
    return;
  try {
    action();
  } catch (std::exception const& error) {
    auto const* const failed = dynamic_cast<std::system_error const*>(&error);
    notice_(fmt::format("cannot use the plug-in cache \"{}\": {}", file_.string(),
                        failed ? failed->code().message() : error.what()));
    file_.clear();
  }
}

bool PluginCache::load(Records& records) const {
  std::error_code error;
  if (fs::status(file_, error).type() == fs::file_type::not_found)
    return true;
  Descriptor file;
  std::string text(openFile(file, file_, O_RDONLY), '\0');
  ssize_t const size = ::read(file.get(), text.data(), text.size());
  check(size >= 0);
  std::string_view rest = std::string_view(text).substr(0, std::size_t(size));
  if (rest.empty())
    return true;
  if (takeText(rest) != Format)
    return false;
  while (!rest.empty()) {
    std::optional<std::string_view> const plugin = takeText(rest);
    std::optional<std::string_view> const stamp = takeText(rest);
    std::optional<ScanResult> result = ScanResult::takeFrom(rest);
    if (!result)
      return false;
    records[std::string(*plugin)] = {std::string(*stamp), {std::move(*result), true}};
  }
  return true;
}

void PluginCache::appendRecord(std::string& text, std::string const& plugin, Kept const& kept) {
  appendText(text, plugin);
  appendText(text, kept.stamp);
  kept.entry.result.appendTo(text);
}

void PluginCache::append(std::string const& plugin) {
  Descriptor const held = lock(file_.parent_path());
  Descriptor file;
  std::size_t const size = openFile(file, file_, O_WRONLY | O_APPEND | O_CREAT);
  std::string text;
  if (size == 0)
    appendText(text, Format);
  appendRecord(text, plugin, kept_.at(plugin));
  write(file, size, text);
}

void PluginCache::compact() {
  Descriptor const held = lock(file_.parent_path());
  Records records;
  load(records);
  for (auto const& [plugin, kept] : kept_)
    if (!kept.entry.cached)
      records[plugin] = kept;
  std::string text;
  appendText(text, Format);
  std::error_code gone;
  for (auto const& [plugin, kept] : records)
    if (!kept.entry.result.passing && fs::exists(plugin, gone))
      appendRecord(text, plugin, kept);
  fs::path const next = file_.string() + ".new";
  Descriptor file;
  openFile(file, next, O_WRONLY | O_CREAT | O_TRUNC);
  write(file, 0, text);
  fs::rename(next, file_);
}

std::vector<PluginCache::Entry> PluginCache::read(std::vector<fs::path> const& plugins, bool retry,
                                                  Scan const& scan) {
  bool whole = true;
  if (!std::exchange(loaded_, true))
    use([&] {
      Descriptor const held = lock(file_.parent_path());
      whole = load(kept_);
    });
  std::vector<fs::path> unread;
  std::map<std::string, std::string> stamps;
  for (fs::path const& plugin : plugins) {
    std::string stamp = stampOf(plugin);
    auto const found = kept_.find(plugin);
    bool const known = found != kept_.end() && found->second.stamp == stamp;
    if (known &&
        !(retry && found->second.entry.cached && !found->second.entry.result.failure.empty()))
      continue;
    unread.push_back(plugin);
    stamps[plugin] = std::move(stamp);
  }
  if (!unread.empty()) {
    if (!whole)
      use([&] { compact(); });
    scan(unread, [&](std::string const& plugin, ScanResult result) {
      bool const passing = result.passing;
      kept_[plugin] = {stamps.at(plugin), {std::move(result), false}};
      if (!passing)
        use([&] { append(plugin); });
    });
    use([&] { compact(); });
  }
  std::vector<Entry> entries;
  entries.reserve(plugins.size());
  for (fs::path const& plugin : plugins)
    entries.push_back(kept_.at(plugin).entry);
  return entries;
}

} // namespace Qv
