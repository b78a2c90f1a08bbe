#pragma once

#include "pluginScan.h"
#include "toolSource.h"

namespace Qv {

/// Reads the tool sources of these names, in their order: "frei0r" is the frei0r plug-ins of this
/// machine, "frei0r:DIR" those of a directory, and anything else a catalogue file. Without names,
/// it is the plug-ins of this machine or, where there are none, the sample catalogue.
/// @throws HostError when a source cannot be read.
std::vector<ToolSource> readToolSources(std::vector<std::string> const& names,
                                        ScanOptions const& options,
                                        std::filesystem::path const& sampleCatalogue = {});

} // namespace Qv
