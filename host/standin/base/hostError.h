#pragma once

#include "exBase.h"

namespace Qv {

/// Thrown by the host when it refuses what it was asked to do; it is as it was before.
class QV_EXPORT HostError : public ExBase {
public:
  using ExBase::ExBase;
  ~HostError() override;
};

} // namespace Qv
