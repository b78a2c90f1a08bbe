#include "callFilter.h"

#include "descriptor.h"
#include "isolationGaps.h"

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <linux/seccomp.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <sstream>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>

#ifndef PR_SET_VMA
#define PR_SET_VMA 0x53564d41
#endif

namespace Qv {

namespace {

/// Placeholder for the id of the process that the filter is applied to.
constexpr std::uint32_t Self = 0x53454c46;

/// Harmless whatever the arguments, since files are left to Landlock.
constexpr char Allowed[] =
    // Memory.
    "brk madvise membarrier mmap mprotect mremap munmap "
    // Files.
    "access close dup dup2 dup3 faccessat faccessat2 fadvise64 fstat fstatfs getcwd getdents64 "
    "lseek lstat newfstatat pread64 preadv read readlink readlinkat readv stat statfs statx write "
    "writev "
    // Waiting, and the time.
    "clock_getres clock_gettime clock_nanosleep epoll_create1 epoll_ctl epoll_pwait epoll_wait "
    "eventfd2 futex gettimeofday nanosleep pause pipe pipe2 poll ppoll pselect6 select time times "
    // The process and its threads.
    "arch_prctl exit exit_group get_robust_list getcpu getegid geteuid getgid getpgrp getpid "
    "getppid getrandom getrlimit getrusage gettid getuid restart_syscall rseq rt_sigaction "
    "rt_sigprocmask rt_sigreturn sched_getaffinity sched_getparam sched_getscheduler sched_yield "
    "set_robust_list set_tid_address sigaltstack sysinfo uname";

/// No plug-in needs any of these to be read.
constexpr char Deadly[] = "execve execveat pidfd_send_signal process_vm_readv process_vm_writev "
                          "ptrace rt_sigqueueinfo rt_tgsigqueueinfo tkill";

/// A rule for a call with certain arguments.
struct Rule {
  std::uint32_t action;
  int call;
  std::vector<scmp_arg_cmp> arguments;
};

/// Holds for an argument, counted from 0, that has this value.
scmp_arg_cmp equals(unsigned argument, std::uint64_t value) {
  return {argument, SCMP_CMP_EQ, value, 0};
}
scmp_arg_cmp differs(unsigned argument, std::uint64_t value) {
  return {argument, SCMP_CMP_NE, value, 0};
}
/// Holds for an argument that has these values in the bits of the mask.
scmp_arg_cmp equalsIn(std::uint64_t mask, unsigned argument, std::uint64_t value) {
  return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

std::vector<Rule> rulesWithArguments() {
  constexpr unsigned Writing = O_ACCMODE | O_CREAT | O_TRUNC;
  std::vector<Rule> rules = {
      // Debian 12's Landlock does not cover truncation.
      {SCMP_ACT_ALLOW, SCMP_SYS(open), {equalsIn(Writing, 1, O_RDONLY)}},
      {SCMP_ACT_ALLOW, SCMP_SYS(openat), {equalsIn(Writing, 2, O_RDONLY)}},
      // isatty().
      {SCMP_ACT_ALLOW, SCMP_SYS(ioctl), {equals(1, TCGETS)}},
      {SCMP_ACT_ALLOW, SCMP_SYS(prctl), {equals(0, PR_SET_NAME)}},
      {SCMP_ACT_ALLOW, SCMP_SYS(prctl), {equals(0, PR_SET_VMA)}},
      // Reading its own limits.
      {SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), {equals(0, 0), equals(2, 0)}},
      // Threads, not processes. A filter cannot see the flags of clone3; glibc falls back to clone.
      {SCMP_ACT_ALLOW, SCMP_SYS(clone), {equalsIn(CLONE_THREAD, 0, CLONE_THREAD)}},
      {SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), {}}};
  // Not F_SETOWN and the like, which signal other processes.
  for (unsigned const command : {F_DUPFD, F_DUPFD_CLOEXEC, F_GETFD, F_SETFD, F_GETFL, F_SETFL})
    rules.push_back({SCMP_ACT_ALLOW, SCMP_SYS(fcntl), {equals(1, command)}});
  // A signal to itself, as abort() sends one.
  for (int const call : {SCMP_SYS(kill), SCMP_SYS(tgkill)}) {
    rules.push_back({SCMP_ACT_ALLOW, call, {equals(0, Self)}});
    rules.push_back({SCMP_ACT_KILL_PROCESS, call, {differs(0, Self)}});
  }
  return rules;
}

void check(int status) {
  if (status < 0)
    throw std::system_error(-status, std::generic_category(), "seccomp");
}

std::vector<sock_filter> compile() {
  std::unique_ptr<void, void (*)(scmp_filter_ctx)> const owner(seccomp_init(SCMP_ACT_ERRNO(EPERM)),
                                                               &seccomp_release);
  auto* const filter = owner.get();
  // A binary tree.
  check(seccomp_attr_set(filter, SCMP_FLTATR_CTL_OPTIMIZE, 2));
  for (auto const& [action, names] :
       {std::pair(SCMP_ACT_ALLOW, Allowed), {SCMP_ACT_KILL_PROCESS, Deadly}}) {
    std::istringstream calls(names);
    for (std::string call; calls >> call;)
      check(seccomp_rule_add(filter, action, seccomp_syscall_resolve_name(call.c_str()), 0));
  }
  for (auto const& [action, call, arguments] : rulesWithArguments())
    check(
        seccomp_rule_add_array(filter, action, call, unsigned(arguments.size()), arguments.data()));

  Descriptor const file(memfd_create("filter", MFD_CLOEXEC));
  check(seccomp_export_bpf(filter, file.get()));
  std::vector<sock_filter> program(std::size_t(lseek(file.get(), 0, SEEK_END)) /
                                   sizeof(sock_filter));
  auto const size = ssize_t(program.size() * sizeof(sock_filter));
  check(pread(file.get(), program.data(), std::size_t(size), 0) == size ? 0 : -EIO);
  return program;
}

} // namespace

CallFilter::CallFilter() {
  if (canFilterCalls())
    program_ = compile();
}

bool CallFilter::apply() const {
  if (program_.empty())
    return true;
  std::vector<sock_filter> program = program_;
  for (sock_filter& step : program)
    if (step.k == Self)
      step.k = std::uint32_t(getpid());
  sock_fprog const filter = {static_cast<unsigned short>(program.size()), program.data()};
  return syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &filter) == 0;
}

} // namespace Qv
