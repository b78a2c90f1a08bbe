#pragma once

#include "toolSource.h"

#include <optional>
#include <string>
#include <vector>

namespace Qv {

/// What a person asked for beside the command itself, and what a command cannot ask the host.
struct Request {
  std::string scheme;
  std::string path;
  /// The items of a command that takes several.
  std::vector<std::string> paths;
  std::string action;
  /// What to search for.
  std::string text;
  /// Levels below the item; all without a value.
  std::optional<int> depth;
  bool unsorted = false;
  /// Only the items at the scheme's item depth.
  bool itemsOnly = false;
  bool noWorkspace = false;
  /// The widgets as well.
  bool dump = false;
  /// Try the plug-ins again that failed before.
  bool retry = false;
  /// The plug-in files of the tool sources, read before any command runs.
  std::vector<ToolSource::Plugin> plugins;
  /// JSON for a machine instead of text for a person.
  bool json = false;
};

// The commands print on stdout and throw what the host or the module throws.

void showSchemes(Request const& request);
void listChildren(Request const& request);
void showTree(Request const& request);
/// The trees of all schemes.
void showTrees(Request const& request);
void showItem(Request const& request);
/// The items of a scheme whose name or label holds a text.
/// @throws HostError after the empty result when there is none.
void searchItems(Request const& request);
void showStartup(Request const& request);
void showPackages(Request const& request);
/// The plug-in files, and why some of them are left out.
void showPlugins(Request const& request);
void listActions(Request const& request);
void runAction(Request const& request);
/// @throws HostError after the results when an item cannot be dragged.
void dragItems(Request const& request);
/// @throws HostError when no view understands any of the items.
void showDetail(Request const& request);

} // namespace Qv
