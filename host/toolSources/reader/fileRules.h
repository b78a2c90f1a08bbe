#pragma once

#include "descriptor.h"

#include <set>
#include <string>

namespace Qv {

/// Lets a process read system files and some directories, and no other files, with Landlock.
/// Refuses the network and signals as far as the kernel can. Without Landlock, nothing is refused.
class FileRules {
public:
  /// @param directories may be read besides the system's.
  /// @throws std::system_error when the kernel refuses the rules.
  explicit FileRules(std::set<std::string> const& directories);

  /// Restricts this process for good. @returns false, with errno, if the kernel refuses.
  bool apply() const;

private:
  void allowReading(std::string const& path) const;

  /// None where there is no Landlock.
  Descriptor ruleset_;
};

} // namespace Qv
