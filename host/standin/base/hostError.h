#pragma once

#include "exBase.h"

namespace Qv {

/// Thrown when the host rejects a request.
class QV_EXPORT HostError : public ExBase {
public:
  using ExBase::ExBase;
  ~HostError() override;
};

} // namespace Qv
