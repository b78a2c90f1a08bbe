#pragma once

#include "toolSource.h"

#include <filesystem>

namespace Qv {

/// Reads a catalogue: one JSON object with the arrays `categories`, `tools` and `views`, each of
/// which may be missing. Where `categories` is missing, the categories are those of the tools in
/// order of first appearance.
///
/// - A category is its name; the order counts, duplicates are allowed.
/// - A tool has `name`, `category`, `active` (default true), `internal` and `superTool` (default
///   false), `texts` (exactly three, default empty) and `tooltip`.
/// - A view has `name` (unique), `label` (default: the name) and `tooltip`.
///
/// Takes time linear in the size of the file, which is not kept in memory.
/// @throws HostError when the file cannot be read, is not JSON, does not fit into memory, or has a
/// fault. It names the file,
/// the place (line and column, or the JSON pointer of the value) and the reason. Repeated and
/// unknown keys are faults, and so is a tool whose category is not one of the listed ones.
ToolSource readToolCatalogue(std::filesystem::path const& file);

} // namespace Qv
