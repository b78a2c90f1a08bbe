#pragma once

#include "items.h"

namespace Qv {

/// The items of a scheme at these paths, as their parents list them. Each parent is asked once.
/// @throws what findItem() throws, and std::invalid_argument for a path that is not listed, with
/// those that a user may have meant.
Items findListedItems(std::string const& scheme, std::vector<std::string> const& paths);

} // namespace Qv
