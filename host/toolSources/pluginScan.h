#pragma once

#include "toolSource.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <iosfwd>

namespace Qv {

/// What reading one plug-in file came to.
struct PluginReading {
  /// The tool, but for its name, which is the stem of the file.
  ToolSource::Tool tool;
  /// Why there is no tool; empty when there is one.
  std::string failure;

  /// Writes it as texts that each end in a zero byte, whatever other bytes they hold.
  void write(std::ostream& stream) const;
  /// @throws HostError when the stream holds anything else.
  static PluginReading read(std::istream& stream);
};

/// Reads a text that ends in a zero byte. @throws HostError when there is none.
std::string readText(std::istream& stream);

/// How plug-in files are read.
struct ScanOptions {
  /// Whether a plug-in that failed before is tried again.
  bool retry = false;
  /// How long one plug-in may take to answer.
  std::chrono::milliseconds limit{5000};
  /// Told what is being waited for, in a text much shorter than a line.
  std::function<void(std::string const&)> progress = [](std::string const&) {};
};

/// Calls `readTool` for each plug-in file in a child process of its own, as many at a time as there
/// are processors. Whatever a plug-in does there, it reaches neither the input and the output of
/// this program nor the other plug-ins: one that crashes, exits, does not answer in time or answers
/// with anything but a reading has a failure that says so, and so has one for which `readTool`
/// throws a HostError. To be called while this program has one thread.
/// @returns one reading for each file, in their order.
/// @throws HostError when no process can be started.
std::vector<PluginReading>
scanPlugins(std::vector<std::filesystem::path> const& files,
            ToolSource::Tool (*readTool)(std::filesystem::path const& file),
            ScanOptions const& options);

} // namespace Qv
