#pragma once

#include <linux/filter.h>
#include <vector>

namespace Qv {

/// Allows a process only the system calls that reading a plug-in needs. A list of forbidden calls
/// would have to grow with the kernel. Where the kernel cannot filter, nothing is refused.
class CallFilter {
public:
  /// Compiles the filter. @throws std::system_error.
  CallFilter();

  /// Filters the calls of this single-threaded process for good. @returns false, with errno, if the
  /// kernel refuses.
  bool apply() const;

private:
  /// Empty where the kernel cannot filter.
  std::vector<sock_filter> program_;
};

} // namespace Qv
