#pragma once

#include "hostTool.h"

#include <string>
#include <vector>

namespace Qv {

/// Tools and views of one origin, read and checked, and not registered yet.
struct ToolSource {
  struct Tool {
    HostToolFacts facts;
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

  /// In the order in which they are listed; the same name may come again.
  std::vector<std::string> categories;
  std::vector<Tool> tools;
  std::vector<View> views;
  /// What was left out and why, one sentence each.
  std::vector<std::string> warnings;
};

/// Adds the categories and tools to the host's tool registry, the views to its view factory, and
/// the tooltips of both to its tooltip server: under one name, the last text stays.
/// @throws HostError at a name that is no single path component or a view that is there already;
/// what came before it is registered.
void registerToolSource(ToolSource const& source);

} // namespace Qv
