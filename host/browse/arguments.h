#pragma once

#include "items.h"

#include <CLI/CLI.hpp>

namespace Qv {

// Arguments that several commands take.

CLI::Option* addScheme(CLI::App& command, std::string& scheme);
CLI::Option* addPath(CLI::App& command, std::string& path);
/// One path or more.
CLI::Option* addPaths(CLI::App& command, std::vector<std::string>& paths);

/// The items of a scheme at these paths. @throws what findItem() throws.
Items findItems(std::string const& scheme, std::vector<std::string> const& paths);

} // namespace Qv
