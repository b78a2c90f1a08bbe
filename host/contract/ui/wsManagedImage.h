#pragma once

#include "rcBase.h"

namespace Qv {

/// An image that the host keeps while it is referenced.
class QV_EXPORT WsManagedImage : public RCBase<LkCounter<int>> {
protected:
  ~WsManagedImage() override;
};

} // namespace Qv
