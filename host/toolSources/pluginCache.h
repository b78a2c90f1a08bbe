#pragma once

#include "pluginScan.h"

#include <map>

namespace Qv {

/// What is known of plug-in files, from this run and from earlier ones, which leave it in a file.
class PluginCache {
public:
  /// The user's own file; empty when the environment does not tell where.
  static std::filesystem::path getUserFile();

  /// @param file is read when it is needed. A missing one is empty, and what is damaged in it or of
  /// another version counts as missing. An empty path stands for no file.
  /// @param notice is told why a file cannot be used, once; the object then does without it.
  PluginCache(std::filesystem::path file, std::function<void(std::string const&)> notice)
      : file_(std::move(file)), notice_(std::move(notice)) {}

  struct Entry {
    ScanResult result;
    /// Whether the result comes from an earlier run.
    bool cached;
  };
  /// Reads plug-in files that are not known or have changed.
  using Scan = std::function<void(std::vector<std::filesystem::path> const&, TakeResult const&)>;

  /// Reads plug-in files, given by their absolute paths. Those that are new go through `scan`, and
  /// each result goes into the file at once unless it is for this run alone. Programs that do so at
  /// the same time lose nothing. In the end, plug-ins that are gone leave the file.
  /// @param retry has plug-ins that failed in an earlier run go through `scan` as well.
  /// @returns one entry for each, in their order.
  std::vector<Entry> read(std::vector<std::filesystem::path> const& plugins, bool retry,
                          Scan const& scan);

private:
  struct Kept {
    /// Of the plug-in file that was read.
    std::string stamp;
    Entry entry;
  };
  /// By absolute path.
  using Records = std::map<std::string, Kept>;

  static void appendRecord(std::string& text, std::string const& plugin, Kept const& kept);

  /// Does something with the file; where that fails, this object does without it from now on.
  void use(std::function<void()> const& action);
  /// Adds the records of the file, the last one of each plug-in. @returns whether it is undamaged.
  bool load(Records& records) const;
  void append(std::string const& plugin);
  /// Writes the file anew, with what other programs have added.
  void compact();

  std::filesystem::path file_;
  std::function<void(std::string const&)> notice_;
  bool loaded_ = false;
  Records kept_;
};

} // namespace Qv
