#pragma once

#include <string>
#include <vector>

namespace Qv {

/// The version of Landlock that the kernel has; less than 1, with errno, when it has none.
long getLandlockVersion();

/// Whether the kernel filters system calls, and ends processes that make some; sets errno if not.
bool canFilterCalls();

/// What qvreader cannot keep a plug-in from on this machine, and why, a phrase each; empty when it
/// keeps it from all.
std::vector<std::string> findIsolationGaps();

} // namespace Qv
