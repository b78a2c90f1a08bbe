#pragma once

#include "pluginScan.h"

#include <map>

namespace Qv {

/// What earlier runs read of plug-in files, kept in one file.
class PluginCache {
public:
  /// The user's own file; empty when the environment does not tell where.
  static std::filesystem::path getUserFile();

  /// Reads the file. One that is missing, cannot be read, is damaged or of another version counts
  /// as empty. An empty path is no file: nothing is kept beyond this object.
  explicit PluginCache(std::filesystem::path file);

  /// What tells whether a plug-in file is still the same: its size and when it was modified. To be
  /// taken before the plug-in is read.
  static std::string getStamp(std::filesystem::path const& plugin);
  /// What is kept of a plug-in file.
  struct Entry {
    std::string stamp;
    PluginReading reading;
    /// Whether an earlier run found out.
    bool earlier;
  };
  /// What is kept of a plug-in file, given by its absolute path, that had this stamp; null when
  /// there is nothing. Valid until the plug-in is kept again.
  Entry const* find(std::filesystem::path const& plugin, std::string const& stamp) const;
  void keep(std::filesystem::path const& plugin, std::string const& stamp,
            PluginReading const& reading);
  /// Writes the file, whole or not at all, without the plug-ins that are gone. Where that cannot be
  /// done, the next run reads the plug-ins again.
  void save() const;

private:
  void load();

  std::filesystem::path file_;
  /// By absolute path.
  std::map<std::string, Entry> entries_;
};

} // namespace Qv
