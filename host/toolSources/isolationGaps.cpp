#include "isolationGaps.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Qv {

long getLandlockVersion() {
  return syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
}

bool canFilterCalls() {
  std::uint32_t const action = SECCOMP_RET_KILL_PROCESS;
  return syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0;
}

std::vector<std::string> findIsolationGaps() {
  std::vector<std::string> gaps;
  if (getLandlockVersion() < 1)
    gaps.push_back(std::string("files can be read (no Landlock: ") + std::strerror(errno) + ")");
  if (!canFilterCalls())
    gaps.push_back(std::string("any system call can be made (no seccomp filter: ") +
                   std::strerror(errno) + ")");
  return gaps;
}

} // namespace Qv
