#pragma once

#include "rcBase.h"

namespace Qv {

/// An image that the host keeps for as long as somebody holds it.
class QV_EXPORT WsManagedImage : public RCBase<LkCounter<int>> {
protected:
  ~WsManagedImage() override;
};

} // namespace Qv
