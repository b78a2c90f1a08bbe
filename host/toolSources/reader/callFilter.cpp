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

/// Stands in the prepared filter for the number of the process that it is applied to.
constexpr std::uint32_t Self = 0x53454c46;

/// Called often, and harmless whatever they are called with, as files are Landlock's part.
constexpr int Allowed[] = {
    // Memory.
    SCMP_SYS(brk), SCMP_SYS(madvise), SCMP_SYS(membarrier), SCMP_SYS(mmap), SCMP_SYS(mprotect),
    SCMP_SYS(mremap), SCMP_SYS(munmap),
    // Files.
    SCMP_SYS(access), SCMP_SYS(close), SCMP_SYS(dup), SCMP_SYS(dup2), SCMP_SYS(dup3),
    SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(fadvise64), SCMP_SYS(fstat),
    SCMP_SYS(fstatfs), SCMP_SYS(getcwd), SCMP_SYS(getdents64), SCMP_SYS(lseek), SCMP_SYS(lstat),
    SCMP_SYS(newfstatat), SCMP_SYS(pread64), SCMP_SYS(preadv), SCMP_SYS(read), SCMP_SYS(readlink),
    SCMP_SYS(readlinkat), SCMP_SYS(readv), SCMP_SYS(stat), SCMP_SYS(statfs), SCMP_SYS(statx),
    SCMP_SYS(write), SCMP_SYS(writev),
    // Waiting, and the time.
    SCMP_SYS(clock_getres), SCMP_SYS(clock_gettime), SCMP_SYS(clock_nanosleep),
    SCMP_SYS(epoll_create1), SCMP_SYS(epoll_ctl), SCMP_SYS(epoll_pwait), SCMP_SYS(epoll_wait),
    SCMP_SYS(eventfd2), SCMP_SYS(futex), SCMP_SYS(gettimeofday), SCMP_SYS(nanosleep),
    SCMP_SYS(pause), SCMP_SYS(pipe), SCMP_SYS(pipe2), SCMP_SYS(poll), SCMP_SYS(ppoll),
    SCMP_SYS(pselect6), SCMP_SYS(select), SCMP_SYS(time), SCMP_SYS(times),
    // The process and its threads.
    SCMP_SYS(arch_prctl), SCMP_SYS(exit), SCMP_SYS(exit_group), SCMP_SYS(get_robust_list),
    SCMP_SYS(getcpu), SCMP_SYS(getegid), SCMP_SYS(geteuid), SCMP_SYS(getgid), SCMP_SYS(getpgrp),
    SCMP_SYS(getpid), SCMP_SYS(getppid), SCMP_SYS(getrandom), SCMP_SYS(getrlimit),
    SCMP_SYS(getrusage), SCMP_SYS(gettid), SCMP_SYS(getuid), SCMP_SYS(restart_syscall),
    SCMP_SYS(rseq), SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sched_getaffinity), SCMP_SYS(sched_getparam), SCMP_SYS(sched_getscheduler),
    SCMP_SYS(sched_yield), SCMP_SYS(set_robust_list), SCMP_SYS(set_tid_address),
    SCMP_SYS(sigaltstack), SCMP_SYS(sysinfo), SCMP_SYS(uname)};

/// No plug-in means well that calls one of these to be read.
constexpr int Deadly[] = {
    SCMP_SYS(execve),           SCMP_SYS(execveat),          SCMP_SYS(pidfd_send_signal),
    SCMP_SYS(process_vm_readv), SCMP_SYS(process_vm_writev), SCMP_SYS(ptrace),
    SCMP_SYS(rt_sigqueueinfo),  SCMP_SYS(rt_tgsigqueueinfo), SCMP_SYS(tkill)};

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
      // Landlock of the kernel of Debian 12 does not see that a file is truncated.
      {SCMP_ACT_ALLOW, SCMP_SYS(open), {equalsIn(Writing, 1, O_RDONLY)}},
      {SCMP_ACT_ALLOW, SCMP_SYS(openat), {equalsIn(Writing, 2, O_RDONLY)}},
      // Whether it is a terminal.
      {SCMP_ACT_ALLOW, SCMP_SYS(ioctl), {equals(1, TCGETS)}},
      {SCMP_ACT_ALLOW, SCMP_SYS(prctl), {equals(0, PR_SET_NAME)}},
      {SCMP_ACT_ALLOW, SCMP_SYS(prctl), {equals(0, PR_SET_VMA)}},
      // To ask for its own limits.
      {SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), {equals(0, 0), equals(2, 0)}},
      // A thread, not a process. The newer call cannot be looked into; without it, the older one
      // is taken.
      {SCMP_ACT_ALLOW, SCMP_SYS(clone), {equalsIn(CLONE_THREAD, 0, CLONE_THREAD)}},
      {SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), {}}};
  // Not those with which a descriptor signals another process.
  for (unsigned const command : {F_DUPFD, F_DUPFD_CLOEXEC, F_GETFD, F_SETFD, F_GETFL, F_SETFL})
    rules.push_back({SCMP_ACT_ALLOW, SCMP_SYS(fcntl), {equals(1, command)}});
  // A signal to itself, as abort() sends one.
  for (int const call : {SCMP_SYS(kill), SCMP_SYS(tgkill)}) {
    rules.push_back({SCMP_ACT_ALLOW, call, {equals(0, Self)}});
    rules.push_back({SCMP_ACT_KILL_PROCESS, call, {differs(0, Self)}});
  }
  return rules;
}

/// Turns what the library returns into an exception.
void check(int status) {
  if (status < 0)
    throw std::system_error(-status, std::generic_category(), "seccomp");
}

std::vector<sock_filter> compile() {
  std::unique_ptr<void, void (*)(scmp_filter_ctx)> const owner(seccomp_init(SCMP_ACT_ERRNO(EPERM)),
                                                               &seccomp_release);
  auto* const filter = owner.get();
  // A tree is shorter to walk than a list.
  check(seccomp_attr_set(filter, SCMP_FLTATR_CTL_OPTIMIZE, 2));
  for (int const call : Allowed)
    check(seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0));
  for (int const call : Deadly)
    check(seccomp_rule_add(filter, SCMP_ACT_KILL_PROCESS, call, 0));
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
