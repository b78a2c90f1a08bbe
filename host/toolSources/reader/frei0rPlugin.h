#pragma once

#include "scanResult.h"

#include <functional>

namespace Qv {

/// Loads a plug-in file into this process, and asks the plug-in for its description. The plug-in is
/// deinitialised only after `reply` was called.
void readFrei0rPlugin(char const* file, std::function<void(ScanResult const&)> const& reply);

} // namespace Qv
