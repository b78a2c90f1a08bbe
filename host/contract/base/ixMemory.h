#pragma once

#include "rcBase.h"

namespace Qv {

/// A block of memory that the host shares.
class QV_EXPORT IxMemory : public RCBase<LkCounter<int>> {
protected:
  ~IxMemory() override;
};

} // namespace Qv
