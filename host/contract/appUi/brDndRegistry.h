#pragma once

#include "brDndHandler.h"

namespace Qv {

/// The registry of drag-and-drop handlers.
class QV_EXPORT BrDndRegistry {
public:
  static BrDndRegistry& getInstance();

  /// Adds a handler for items of the prototype's class. The module ignores the result.
  bool addHandler(RCShdPtr<BrBrowsable> const& type, RCShdPtr<BrDndHandler> const& handler);
};

} // namespace Qv
