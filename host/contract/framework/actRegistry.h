#pragma once

#include "actAction.h"
#include "oPtr.h"

namespace Qv {

/// The action registry.
class QV_EXPORT ActRegistry {
public:
  /// Defined by the host; the module passes 0.
  enum DynamicState : int {};

  static ActRegistry& getInstance();

  /// Takes ownership of the action and offers it.
  void registerAction(OPtr<ActAction> action, DynamicState state);
};

} // namespace Qv
