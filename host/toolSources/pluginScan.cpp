#include "pluginScan.h"

#include "descriptor.h"
#include "hostError.h"
#include "isolationGaps.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <set>
#include <spawn.h>
#include <sys/wait.h>

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// The environment variables that plug-ins see.
constexpr char const* Environment[] = {"LANG",        "LANGUAGE",        "LC_ALL", "LC_CTYPE",
                                       "LC_MESSAGES", "LD_LIBRARY_PATH", "TZ"};

fs::path installedReader() {
  return (fs::read_symlink("/proc/self/exe").parent_path() / QV_READER).lexically_normal();
}

/// A running qvreader.
class Reader {
public:
  /// @throws HostError when it cannot be started.
  Reader(std::vector<fs::path> const& files, ScanOptions const& options) {
    fs::path const program = options.reader.empty() ? installedReader() : options.reader;
    std::vector<std::string> arguments = {program, std::to_string(options.processorTime.count()),
                                          std::to_string(options.timeout.count())};
    arguments.insert(arguments.end(), files.begin(), files.end());
    std::vector<std::string> environment;
    for (char const* const name : Environment)
      if (char const* const value = std::getenv(name))
        environment.push_back(fmt::format("{}={}", name, value));

    std::array<int, 2> ends = {-1, -1};
    int status = pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno;
    replies_.reset(ends[0]);
    Descriptor const pipe(ends[1]);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipe.get(), STDOUT_FILENO);
    if (status == 0)
      status = posix_spawn(&process_, program.c_str(), &actions, nullptr,
                           pointersTo(arguments).data(), pointersTo(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    if (status != 0)
      throw HostError(fmt::format("cannot start the plug-in reader \"{}\": {}", program.string(),
                                  std::strerror(status)));
  }
  Reader(Reader const&) = delete;
  Reader& operator=(Reader const&) = delete;
  ~Reader() {
    if (!ended_)
      kill(process_, SIGKILL);
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR)
      continue;
  }

  /// Waits for replies and appends them. @returns false at their end.
  bool receive(std::string& replies) {
    std::array<char, 1 << 16> buffer;
    ssize_t count = 0;
    do
      count = read(replies_.get(), buffer.data(), buffer.size());
    while (count < 0 && errno == EINTR);
    replies.append(buffer.data(), std::size_t(std::max<ssize_t>(0, count)));
    ended_ = count == 0;
    return count > 0;
  }

private:
  static std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
      pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
  }

  pid_t process_ = -1;
  Descriptor replies_;
  bool ended_ = false;
};

/// Removes the first result from the replies. @returns nothing when none is complete.
std::optional<std::pair<std::string, ScanResult>> takeResult(std::string& replies) {
  std::string_view rest = replies;
  std::string file(takeText(rest).value_or(""));
  if (file.empty() && !replies.empty())
    throw HostError(fmt::format("cannot read plug-ins: {}", takeText(rest).value_or("")));
  std::optional<ScanResult> result = ScanResult::takeFrom(rest);
  if (!result)
    return std::nullopt;
  replies.erase(0, replies.size() - rest.size());
  return std::pair(std::move(file), std::move(*result));
}

} // namespace

void scanPlugins(std::vector<fs::path> const& files, ScanOptions const& options,
                 TakeResult const& take) {
  std::vector<std::string> const gaps = findIsolationGaps();
  if (options.requireIsolation && !gaps.empty())
    throw HostError(fmt::format("plug-ins cannot be isolated completely on this machine: {}",
                                fmt::join(gaps, ", ")));
  Reader reader(files, options);
  std::set<std::string> waiting(files.begin(), files.end());
  // Files are started in order, so this one has been waited for longest.
  auto first = files.begin();
  std::string replies;
  do {
    while (auto result = takeResult(replies))
      if (waiting.erase(result->first) > 0)
        take(result->first, std::move(result->second));
    while (first != files.end() && !waiting.contains(*first))
      ++first;
    if (first != files.end())
      options.progress(fmt::format("reading plug-ins, {} of {}: {}", files.size() - waiting.size(),
                                   files.size(), first->filename().string()));
  } while (reader.receive(replies));
  if (!waiting.empty())
    throw HostError("cannot read plug-ins: the plug-in reader ended before it was done");
}

} // namespace Qv
