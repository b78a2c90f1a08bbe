#pragma once

#include "hostTool.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Qv {

/// Tools and views of one origin, read and checked, and not registered yet.
struct ToolSource {
  /// What people call it: a file, a directory.
  std::string origin;

  struct Tool {
    HostToolInfo info;
    /// Empty when there is none.
    std::string tooltip;
  };

  struct View {
    std::string name;
    /// What people read in place of the name.
    std::string label;
    /// Empty when there is none.
    std::string tooltip;
  };

  /// A plug-in file that was read, or not.
  struct Plugin {
    /// An absolute path.
    std::filesystem::path file;
    /// Why it is left out; empty when it is not.
    std::string failure = {};
    /// Whether an earlier run found out.
    bool cached = false;
  };

  /// In the order in which they are listed; the same name may come again.
  std::vector<std::string> categories;
  std::vector<Tool> tools;
  std::vector<View> views;
  /// Where the tools come from; none for a catalogue.
  std::vector<Plugin> plugins;
};

/// Adds the categories and tools to the host's tool registry, the views to its view factory, and
/// the tooltips of both to its tooltip server. A category that an earlier source lists is not added
/// again; under one name, the first tooltip stays.
/// @throws HostError when two sources have a view of the same name; nothing is registered then.
void registerToolSources(std::vector<ToolSource> const& sources);

} // namespace Qv
