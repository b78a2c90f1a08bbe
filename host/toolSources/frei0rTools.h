#pragma once

#include "pluginCache.h"
#include "toolSource.h"

namespace Qv {

/// Where distributions install frei0r plug-ins.
inline constexpr char const* frei0rDirectory = "/usr/lib/frei0r-1";

/// Reads the frei0r plug-ins of a directory, its *.so files, in order of their names. A plug-in is
/// a tool: it is named after its file, its category is its type, its texts are its own name, its
/// explanation, and its author with its version, and its tooltip lists its parameters. What the
/// cache lacks is read as scanPlugins() does. A plug-in that cannot be read is left out of the
/// tools.
/// @throws HostError when there is no such directory or no *.so file in it.
ToolSource readFrei0rTools(std::filesystem::path const& directory, PluginCache& cache,
                           ScanOptions const& options = {});

/// Whether a directory can be read and holds a plug-in.
bool hasFrei0rTools(std::filesystem::path const& directory);

} // namespace Qv
