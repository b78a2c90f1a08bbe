#pragma once

#include <string>
#include <vector>

namespace Qv {

/// The kernel's version of Landlock; less than 1, with errno, if it has none.
long getLandlockVersion();

/// Whether the kernel can filter system calls and kill processes for them; sets errno if not.
bool canFilterCalls();

/// What qvreader cannot prevent on this machine, and why, a phrase each.
std::vector<std::string> findIsolationGaps();

} // namespace Qv
