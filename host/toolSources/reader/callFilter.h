#pragma once

#include <linux/filter.h>
#include <vector>

namespace Qv {

/// The system calls that are left to a process: those that reading a plug-in needs. It is a list
/// of what is allowed, since a list of what is not would have to grow with the kernel. Where the
/// kernel cannot filter, nothing is refused.
class CallFilter {
public:
  /// Takes longer than to apply it.
  /// @throws std::system_error when there is no filter.
  CallFilter();

  /// Filters the calls of this process, which has one thread, for good.
  /// @returns false, with errno, when the kernel refuses to.
  bool apply() const;

private:
  /// Empty where the kernel cannot filter.
  std::vector<sock_filter> program_;
};

} // namespace Qv
