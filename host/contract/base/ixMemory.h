#pragma once

#include "rcBase.h"

namespace Qv {

/// A shared memory block of the host.
class QV_EXPORT IxMemory : public RCBase<LkCounter<int>> {
protected:
  ~IxMemory() override;
};

} // namespace Qv
