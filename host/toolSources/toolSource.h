#pragma once

#include "hostTool.h"
#include "rcShdPtr.h"
#include "scanResult.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Qv {

/// Tools and views of one origin, checked but not registered.
struct ToolSource {
  /// The catalogue file; empty for plug-ins.
  std::string origin;

  struct Tool {
    RCShdPtr<HostTool const> tool;
    /// Empty when there is none.
    std::string tooltip;
  };

  struct View {
    std::string name;
    /// Shown in place of the name.
    std::string label;
    /// Empty when there is none.
    std::string tooltip;
  };

  /// A plug-in file. It is a tool unless it failed or is hidden.
  struct Plugin {
    /// An absolute path.
    std::filesystem::path file;
    /// The plug-in directory in which it was found, or in a vendor folder of which.
    std::filesystem::path place = {};
    /// Why it could not be read; empty when it was, or when it is hidden.
    std::string failure = {};
    /// The plug-in file of the same name, in an earlier place, that hides this one; usually empty.
    std::filesystem::path hiddenBy = {};
    /// Whether the result comes from an earlier run.
    bool cached = false;
    /// The registry name and the category of its tool; empty when there is none.
    std::string tool = {};
    std::string category = {};
    /// As the plug-in gives them; empty when it could not be read.
    std::string version = {};
    std::vector<PluginParameter> parameters = {};
  };

  /// In the order in which they are listed; duplicates are allowed.
  std::vector<std::string> categories;
  std::vector<Tool> tools;
  std::vector<View> views;
  /// Where the tools come from; none for a catalogue.
  std::vector<Plugin> plugins;
};

/// Adds the categories and tools to the host's tool registry, the views to its view factory, and
/// the tooltips of both to its tooltip server. Skips categories that an earlier source lists; of
/// several tooltips of one name, the first stays.
/// @throws HostError if two sources have a view of the same name; nothing is registered then.
void registerToolSources(std::vector<ToolSource> sources);

} // namespace Qv
