#pragma once

#include "callFilter.h"
#include "fileRules.h"

#include <chrono>

namespace Qv {

/// Leaves the caller's session, terminal, signals, privileges and descriptors but for stdout, and
/// ends with the caller. For the start of this program.
/// @returns a descriptor above the standard streams, which takes the place of stdout; the standard
/// streams lead to /dev/null.
int leaveCaller();

/// Closes in processes that load the code of a stranger: each can then compute, read system files
/// and the directories of the plug-ins, and write to a pipe.
class Isolation {
public:
  /// Prepares what all of them share. @throws std::system_error.
  explicit Isolation(std::vector<std::string> const& plugins);

  /// Closes in this process, a child of the one that prepared it, for good.
  /// @param pipe is the one descriptor besides the standard streams that stays open.
  /// @returns false, with errno, when the kernel refuses to.
  bool closeIn(int pipe, std::chrono::seconds processorTime) const;

private:
  FileRules rules_;
  CallFilter filter_;
};

} // namespace Qv
