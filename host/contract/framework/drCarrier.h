#pragma once

#include "snSelection.h"

namespace Qv {

/// Carries a selection through one drag.
class QV_EXPORT DrCarrier : public RCBase<LkCounter<int>> {
public:
  /// @param selection is shared.
  explicit DrCarrier(RCShdPtr<SnSelection> const& selection);

  /// The selection under way, to be filled and read.
  RCShdPtr<SnSelection> getSelection();

protected:
  ~DrCarrier() override;

private:
  RCShdPtr<SnSelection> selection_;
};

} // namespace Qv
