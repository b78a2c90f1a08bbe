#pragma once

#include <cerrno>
#include <initializer_list>
#include <seccomp.h>
#include <stdexcept>
#include <thread>

namespace Qv {

/// Runs `f` as on a kernel without these system calls.
template <class F> void runWithoutCalls(std::initializer_list<int> calls, F f) {
  // A filter lasts as long as its thread.
  std::thread([&] {
    auto* const filter = seccomp_init(SCMP_ACT_ALLOW);
    int failed = 0;
    for (int const call : calls)
      failed |= seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), call, 0);
    failed |= seccomp_load(filter);
    seccomp_release(filter);
    if (failed != 0)
      throw std::runtime_error("cannot filter the system calls");
    f();
  }).join();
}

} // namespace Qv
