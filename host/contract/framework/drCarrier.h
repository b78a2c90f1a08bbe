#pragma once

#include "snSelection.h"

namespace Qv {

/// Carries a selection through one drag.
class QV_EXPORT DrCarrier : public RCBase<LkCounter<int>> {
public:
  /// The dragged selection, to be filled and read.
  RCShdPtr<SnSelection> getSelection();

  /// @name Stand-in only
  /// @{

  /// @param selection is shared.
  explicit DrCarrier(RCShdPtr<SnSelection> const& selection);
  /// @}

protected:
  ~DrCarrier() override;

private:
  RCShdPtr<SnSelection> selection_;
};

} // namespace Qv
