#pragma once

#include "exBase.h"

namespace Qv {

/// Thrown by the host when it refuses a request, which has changed nothing.
class QV_EXPORT HostError : public ExBase {
public:
  using ExBase::ExBase;
  ~HostError() override;
};

} // namespace Qv
