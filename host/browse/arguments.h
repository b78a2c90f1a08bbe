#pragma once

#include "items.h"
#include "program.h"

namespace Qv {

/// Items as a user names them on the command line.
struct ItemArguments {
  std::optional<std::string> scheme;
  /// As paths are written everywhere: with the escapes of escaped().
  std::vector<std::string> paths;
  /// Whether items may be named that no parent lists.
  bool unlisted = false;
};

CLI::Option* addScheme(Program& program, CLI::App& command, ItemArguments& arguments);
/// One path, which may be left out for the root.
void addPath(CLI::App& command, ItemArguments& arguments);
/// One path or more.
void addPaths(CLI::App& command, ItemArguments& arguments);
/// Whether paths alone are printed.
CLI::Option* addPathsFlag(CLI::App& command, bool& paths);

/// @throws what findItem() and findListedItems() throw.
Items findItems(ItemArguments const& arguments);

/// Prints the item's path as a line that can be an argument again.
void printPath(BrBrowsable const& item, Output& output);

} // namespace Qv
