#pragma once

#include <nlohmann/json.hpp>

namespace Qv {

/// Keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

} // namespace Qv
