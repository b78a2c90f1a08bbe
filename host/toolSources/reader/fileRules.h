#pragma once

#include "descriptor.h"

#include <set>
#include <string>

namespace Qv {

/// What Landlock leaves a process: to read system files and some directories, and nothing else. Of
/// the network and of signals it refuses what the kernel knows to refuse. Where there is no
/// Landlock, nothing is refused.
class FileRules {
public:
  /// @param directories may be read besides the system's.
  /// @throws std::system_error when the kernel refuses the rules.
  explicit FileRules(std::set<std::string> const& directories);

  /// Restricts this process for good. @returns false, with errno, when the kernel refuses to.
  bool apply() const;

private:
  void allowReading(std::string const& path) const;

  /// None where there is no Landlock.
  Descriptor ruleset_;
};

} // namespace Qv
