#pragma once

#include "scanResult.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <vector>

namespace Qv {

/// How plug-in files are read.
struct ScanOptions {
  /// Whether plug-ins are only looked for, and none is read.
  bool skip = false;
  /// Whether plug-ins that failed, in whatever run, are tried again, each once.
  bool retry = false;
  /// Whether none is read where plug-ins cannot be isolated completely; see findIsolationGaps().
  bool requireIsolation = false;
  /// How long reading one plug-in may take, however busy the machine is. A plug-in that takes
  /// longer is tried again in the next run.
  std::chrono::milliseconds timeout{30'000};
  /// How much processor time it may use.
  std::chrono::seconds processorTime{5};
  /// The program qvreader; empty for the one installed with this program.
  std::filesystem::path reader = {};
  /// Told what is being waited for. The text may hold a file name, to be escaped and cut to fit.
  std::function<void(std::string const&)> progress = [](std::string const&) {};
  /// Told, in a sentence, of a problem that stops nothing: a directory that cannot be searched, a
  /// cache that cannot be used. The text may hold file names, to be escaped as well.
  std::function<void(std::string const&)> notice = [](std::string const&) {};

  /// Limits both times: how long a plug-in may take, and how much of that it may compute.
  void setTimeout(std::chrono::seconds seconds) { timeout = processorTime = seconds; }
};

/// Takes the result of reading a plug-in file, given by its absolute path.
using TakeResult = std::function<void(std::string const& file, ScanResult result)>;

/// Has qvreader read plug-in files, each in an isolated process: whatever a plug-in does there, it
/// reaches neither this program nor the other plug-ins nor the user's files. One that crashes,
/// exits, does not reply in time or does what it must not has a failure that says so. May be called
/// on any thread.
/// @param files are absolute paths.
/// @param take is called with each result as soon as it is known.
/// @throws HostError if qvreader fails, or isolation is required and incomplete.
void scanPlugins(std::vector<std::filesystem::path> const& files, ScanOptions const& options,
                 TakeResult const& take);

} // namespace Qv
