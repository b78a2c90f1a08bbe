#pragma once

#include "actAction.h"
#include "oPtr.h"

namespace Qv {

/// The registry of actions.
class QV_EXPORT ActRegistry {
public:
  enum DynamicState : int {};

  static ActRegistry& getInstance();

  virtual void registerAction(OPtr<ActAction> action, DynamicState state) = 0;

protected:
  ~ActRegistry() = default;
};

} // namespace Qv
