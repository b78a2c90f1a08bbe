#include "isolation.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <linux/capability.h>
#include <poll.h>
#include <set>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Qv {

namespace {

#ifdef QV_SANITIZED
// Sanitizers reserve far more than any limit.
constexpr rlim_t AddressSpace = RLIM_INFINITY;
#else
constexpr rlim_t AddressSpace = 1 << 30;
#endif
/// Enough for the libraries of a plug-in, which are opened one by one.
constexpr rlim_t OpenFiles = 64;

/// Lowers a limit, never raises it.
bool limit(__rlimit_resource resource, rlim_t soft, rlim_t hard) {
  rlimit limits = {};
  getrlimit(resource, &limits);
  limits.rlim_max = std::min(limits.rlim_max, hard);
  limits.rlim_cur = std::min(limits.rlim_max, soft);
  return setrlimit(resource, &limits) == 0;
}

bool limitResources(std::chrono::seconds processorTime) {
  // SIGXCPU at the soft limit; SIGKILL at the hard one, if that is ignored.
  auto const seconds = rlim_t(processorTime.count());
  return limit(RLIMIT_CORE, 0, 0) && limit(RLIMIT_FSIZE, 0, 0) &&
         limit(RLIMIT_NOFILE, OpenFiles, OpenFiles) && limit(RLIMIT_CPU, seconds, seconds + 1) &&
         limit(RLIMIT_AS, AddressSpace, AddressSpace);
}

/// The directories of plug-in files, by their names and by what those refer to.
std::set<std::string> directoriesOf(std::vector<std::string> const& plugins) {
  std::set<std::string> directories;
  for (std::filesystem::path const plugin : plugins) {
    std::error_code error;
    directories.insert(plugin.parent_path());
    directories.insert(std::filesystem::weakly_canonical(plugin, error).parent_path());
  }
  return directories;
}

} // namespace

int leaveCaller() {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  pollfd pipe = {STDOUT_FILENO, 0, 0};
  // The caller may have died before the prctl; the pipe is broken then.
  bool const read = poll(&pipe, 1, 0) == 0;
  int const taken = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  int const devNull = open("/dev/null", O_RDWR | O_CLOEXEC);
  if (!read || taken < 0 || devNull < 0 || chdir("/") != 0)
    std::_Exit(EXIT_FAILURE);
  for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    dup2(devNull, stream);
  close_range(STDERR_FILENO + 1, unsigned(taken) - 1, 0);
  close_range(unsigned(taken) + 1, ~0U, 0);

  setsid();
  for (int signal = 1; signal < NSIG; ++signal)
    std::signal(signal, SIG_DFL);
  sigset_t mask;
  sigemptyset(&mask);
  sigprocmask(SIG_SETMASK, &mask, nullptr);
  // No core dump, not even to a collecting program, and no tracing.
  prctl(PR_SET_DUMPABLE, 0);
  __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
  std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> const capabilities = {};
  syscall(SYS_capset, &header, capabilities.data());
  prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  // What plug-ins leave behind becomes a child of this process.
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  return taken;
}

Isolation::Isolation(std::vector<std::string> const& plugins) : rules_(directoriesOf(plugins)) {}

bool Isolation::closeIn(int pipe, std::chrono::seconds processorTime) const {
  // Its own process group, in case it signals the group.
  return prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 && setpgid(0, 0) == 0 && rules_.apply() &&
         close_range(STDERR_FILENO + 1, unsigned(pipe) - 1, 0) == 0 &&
         close_range(unsigned(pipe) + 1, ~0U, 0) == 0 && limitResources(processorTime) &&
         filter_.apply();
}

} // namespace Qv
