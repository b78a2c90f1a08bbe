#pragma once

#include "brBrowsable.h"
#include "hostJournal.h"
#include "hostModule.h"
#include "pluginScan.h"
#include "toolSource.h"

#include <optional>

namespace Qv {

/// The host in operation: registries filled from tool sources, and the module. At its end the
/// registries are empty, so that another session may follow. One at a time.
class Session {
public:
  struct Options {
    /// As readToolSources() takes them. Without any, the frei0r plug-ins of this machine are read
    /// or, where there are none, the sample catalogue.
    std::vector<std::string> sources = {};
    /// The module file; by default the one that belongs to the program.
    std::optional<std::filesystem::path> module = {};
    ScanOptions scan = {};
  };

  /// @throws HostError when a source or the module cannot be read. Whatever the module throws
  /// passes.
  explicit Session(Options const& options) : Session(options, read(options)) {}
  /// Over sources that have been read.
  Session(Options const& options, std::vector<ToolSource> sources);

  /// Reads the sources that the options name. May be called on any thread.
  /// @throws HostError when one cannot be read.
  static std::vector<ToolSource> read(Options const& options);
  /// Fills the registries anew; items made before show what there was.
  void refill(std::vector<ToolSource> sources);

  /// The plug-in files of all sources.
  std::vector<ToolSource::Plugin> const& getPlugins() const { return plugins_; }
  /// The plug-in that an item stands for; null for any other item.
  ToolSource::Plugin const* findPlugin(BrBrowsable const& item) const;
  /// What the module did to the host while it started.
  std::vector<HostJournal::Entry> const& getStartup() const { return startup_; }

private:
  /// Empties the registries that the sources fill, after the module has gone.
  struct Registries {
    ~Registries();
    static void clear();
  };

  Registries registries_;
  std::optional<HostModule> module_;
  std::vector<ToolSource::Plugin> plugins_;
  std::vector<HostJournal::Entry> startup_;
};

} // namespace Qv
