#pragma once

#include "callFilter.h"
#include "fileRules.h"

#include <chrono>

namespace Qv {

/// Detaches this program from its caller's session, terminal, signals, privileges and descriptors,
/// and has it end with the caller. To be called first.
/// @returns what was stdout; the standard streams are /dev/null afterwards.
int leaveCaller();

/// Isolates processes that load untrusted code: each can then compute, read system files and the
/// directories of the plug-ins, and write to a pipe.
class Isolation {
public:
  /// Prepares what all of them share. @throws std::system_error.
  explicit Isolation(std::vector<std::string> const& plugins);

  /// Isolates this process, a child of the one that prepared it, for good.
  /// @param pipe is the one descriptor besides the standard streams that stays open.
  /// @returns false, with errno, if the kernel refuses.
  bool closeIn(int pipe, std::chrono::seconds processorTime) const;

private:
  FileRules rules_;
  CallFilter filter_;
};

} // namespace Qv
