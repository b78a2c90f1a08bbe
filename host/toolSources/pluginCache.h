#pragma once

#include "pluginScan.h"

namespace Qv {

/// What was read of plug-in files, in this run and in earlier ones, which leave it in a file.
class PluginCache {
public:
  /// The user's own file; empty when the environment does not tell where.
  static std::filesystem::path getUserFile();

  /// Reads the file. One that is missing, cannot be read, is damaged or of another version counts
  /// as empty. An empty path is no file: nothing is kept beyond this object.
  explicit PluginCache(std::filesystem::path file);

  /// What is known of a plug-in file.
  struct Entry {
    /// An absolute path.
    std::filesystem::path plugin;
    ScanResult result;
    /// Whether the result comes from an earlier run.
    bool cached;
  };
  /// Reads plug-in files that are not known or have changed.
  using Scan = std::function<ScanResults(std::vector<std::filesystem::path> const& plugins)>;

  /// Reads plug-in files, given by their absolute paths. Those that are new go through `scan`, and
  /// then into the file, which is written whole or not at all, without the plug-ins that are gone.
  /// @param retry has those go through `scan` as well that failed in an earlier run.
  /// @returns one entry for each, in their order.
  std::vector<Entry> read(std::vector<std::filesystem::path> const& plugins, bool retry,
                          Scan const& scan);

private:
  /// What is kept of a plug-in file that had this stamp.
  struct Kept {
    std::string stamp;
    ScanResult result;
    bool cached;
  };

  void load();
  void save() const;

  std::filesystem::path file_;
  /// By absolute path.
  std::map<std::string, Kept> kept_;
};

} // namespace Qv
