#pragma once

#include "actAction.h"
#include "oPtr.h"

namespace Qv {

/// The registry of actions.
class QV_EXPORT ActRegistry {
public:
  /// The host's own; the module passes 0.
  enum DynamicState : int {};

  static ActRegistry& getInstance();

  /// Takes ownership of the action and offers it.
  void registerAction(OPtr<ActAction> action, DynamicState state);
};

} // namespace Qv
