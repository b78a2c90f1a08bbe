#pragma once

#include "brBrowsable.h"

namespace Qv {

/// A node of the browser's tree.
class QV_EXPORT BrNode : public RCBase<LkCounter<int>> {
protected:
  ~BrNode() override;

public:
  /// May be null.
  virtual RCShdPtr<BrBrowsable> const& getBrowsable() const = 0;

  static RCShdPtr<BrNode> create(RCShdPtr<BrBrowsable> const& browsable);
};

} // namespace Qv
