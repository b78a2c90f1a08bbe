#pragma once

#include "brDndHandler.h"

namespace Qv {

/// The registry of drag-and-drop handlers.
class QV_EXPORT BrDndRegistry {
public:
  static BrDndRegistry& getInstance();

  /// Attaches a handler to the class of items that the prototype `type` stands for. Returns false
  /// when that class has a handler already.
  bool addHandler(RCShdPtr<BrBrowsable> const& type, RCShdPtr<BrDndHandler> const& handler);
};

} // namespace Qv
