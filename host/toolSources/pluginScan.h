#pragma once

#include "scanResult.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <vector>

namespace Qv {

/// How plug-in files are read.
struct ScanOptions {
  /// Whether a plug-in that failed before is tried again.
  bool retry = false;
  /// Whether none is read where plug-ins cannot be closed in; see findIsolationGaps().
  bool requireIsolation = false;
  /// How much of a processor's time one plug-in may use.
  std::chrono::seconds processorTime{5};
  /// How long it may take, busy as the machine may be.
  std::chrono::milliseconds time{30'000};
  /// The program qvreader; empty for the one installed with this program.
  std::filesystem::path reader = {};
  /// Told what is being waited for, in a text much shorter than a line.
  std::function<void(std::string const&)> progress = [](std::string const&) {};
};

/// What came of plug-in files, by their absolute paths.
using ScanResults = std::map<std::string, ScanResult>;

/// Has qvreader read plug-in files, each in a process that is closed in: whatever a plug-in does
/// there, it reaches neither this program nor the other plug-ins nor the user's files. One that
/// crashes, exits, does not reply in time or does what it must not has a failure that says so. May
/// be called on any thread.
/// @param files are absolute paths.
/// @throws HostError when they cannot be read, or must not as there are gaps.
ScanResults scanPlugins(std::vector<std::filesystem::path> const& files,
                        ScanOptions const& options);

} // namespace Qv
