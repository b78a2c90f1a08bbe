#pragma once

#include "hostError.h"
#include "pluginCache.h"
#include "toolSource.h"

#include <set>

namespace Qv {

/// Thrown where no plug-in file is found.
class NoPluginsError : public HostError {
public:
  using HostError::HostError;
};

/// Reads frei0r plug-ins, the *.so files in plug-in directories and in vendor folders below them. A
/// plug-in is a tool, named after its file; its category is its type. One that cannot be read is
/// left out, and so is one that a plug-in of the same name hides, in an earlier directory or
/// source.
class Frei0rTools {
public:
  Frei0rTools(PluginCache& cache, ScanOptions const& options) : cache_(cache), options_(options) {}

  /// Reads the plug-ins of the places that the interface names: those in FREI0R_PATH or, where that
  /// is not set, the user's and the system's.
  /// @throws NoPluginsError, and whatever scanPlugins() throws.
  ToolSource read();
  /// Reads the plug-ins of a directory. @throws what read() does.
  ToolSource read(std::filesystem::path const& directory);

private:
  struct Search;

  ToolSource read(Search const& search);

  PluginCache& cache_;
  ScanOptions const& options_;
  /// Of all sources: the plug-in files, and the file of each tool.
  std::set<std::filesystem::path> files_;
  std::map<std::string, std::filesystem::path> tools_;
};

} // namespace Qv
