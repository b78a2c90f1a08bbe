#pragma once

#include "rcBase.h"

namespace Qv {

/// A browser on screen.
class QV_EXPORT BrBrowser : public RCBase<LkCounter<int>> {
public:
  /// @name Stand-in only
  /// @{
  BrBrowser();
  /// @}

protected:
  ~BrBrowser() override;
};

} // namespace Qv
