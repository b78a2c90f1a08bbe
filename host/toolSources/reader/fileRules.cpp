#include "fileRules.h"

#include "isolationGaps.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sstream>
#include <sys/syscall.h>
#include <system_error>

// Not in the headers of Debian 12.
#ifndef LANDLOCK_ACCESS_NET_BIND_TCP
#define LANDLOCK_ACCESS_NET_BIND_TCP (1ULL << 0)
#define LANDLOCK_ACCESS_NET_CONNECT_TCP (1ULL << 1)
#endif
#ifndef LANDLOCK_SCOPE_SIGNAL
#define LANDLOCK_SCOPE_ABSTRACT_UNIX_SOCKET (1ULL << 0)
#define LANDLOCK_SCOPE_SIGNAL (1ULL << 1)
#endif

namespace Qv {

namespace {

/// What plug-ins and their libraries read.
constexpr char SystemFiles[] =
    "/usr:/opt:/lib:/lib32:/lib64:/etc/ld.so.cache:/etc/fonts:/etc/localtime:/proc/cpuinfo:"
    "/proc/meminfo:/sys/devices/system/cpu:/dev/null:/dev/random:/dev/urandom:/dev/zero:";

/// The kernel's landlock_ruleset_attr, with fields that the headers of Debian 12 lack.
struct Ruleset {
  __u64 files;
  __u64 network;
  __u64 scoped;
};

/// All that a version of Landlock can refuse.
Ruleset allOf(long version) {
  // Rights are numbered in the order in which versions added them: 13 at first, then moving files,
  // truncating, and controlling devices.
  int const rights = version < 2 ? 13 : version < 3 ? 14 : version < 5 ? 15 : 16;
  Ruleset all = {(1ULL << rights) - 1, 0, 0};
  if (version >= 4)
    all.network = LANDLOCK_ACCESS_NET_BIND_TCP | LANDLOCK_ACCESS_NET_CONNECT_TCP;
  if (version >= 6)
    all.scoped = LANDLOCK_SCOPE_ABSTRACT_UNIX_SOCKET | LANDLOCK_SCOPE_SIGNAL;
  return all;
}

} // namespace

FileRules::FileRules(std::set<std::string> const& directories) {
  long const version = getLandlockVersion();
  if (version < 1)
    return;
  Ruleset const all = allOf(version);
  ruleset_.reset(int(syscall(SYS_landlock_create_ruleset, &all, sizeof all, 0)));
  if (ruleset_.get() < 0)
    throw std::system_error(errno, std::generic_category(), "Landlock");
  for (std::string const& directory : directories)
    allowReading(directory);
  char const* const libraries = std::getenv("LD_LIBRARY_PATH");
  std::istringstream paths(std::string(SystemFiles) + (libraries ? libraries : ""));
  for (std::string path; std::getline(paths, path, ':');)
    if (path.starts_with('/'))
      allowReading(path);
}

void FileRules::allowReading(std::string const& path) const {
  // A missing file cannot be opened, and needs no rule.
  Descriptor const file(open(path.c_str(), O_PATH | O_CLOEXEC));
  landlock_path_beneath_attr rule = {LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR,
                                     file.get()};
  auto const add = [&] {
    return syscall(SYS_landlock_add_rule, ruleset_.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) ==
           0;
  };
  if (file.get() >= 0 && !add()) {
    // The only right that applies to a file.
    rule.allowed_access = LANDLOCK_ACCESS_FS_READ_FILE;
    add();
  }
}

bool FileRules::apply() const {
  return ruleset_.get() < 0 || syscall(SYS_landlock_restrict_self, ruleset_.get(), 0) == 0;
}

} // namespace Qv
