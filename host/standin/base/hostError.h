#pragma once

#include "exBase.h"

namespace Qv {

/// Thrown when the host rejects a request, which then has changed nothing.
class QV_EXPORT HostError : public ExBase {
public:
  using ExBase::ExBase;
  ~HostError() override;
};

} // namespace Qv
