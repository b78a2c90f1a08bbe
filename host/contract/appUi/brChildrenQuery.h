#pragma once

#include "iterator.h"

namespace Qv {

class BrBrowsable;

/// Enumerates an item's children in sequences, up to an empty one.
class QV_EXPORT BrChildrenQuery : public RCBase<LkCounter<int>> {
protected:
  ~BrChildrenQuery() override;

public:
  /// @param parent is not owned and must outlive the query.
  explicit BrChildrenQuery(BrBrowsable* parent);

  /// Restarts the enumeration.
  virtual void reset() = 0;
  /// The next children; empty if there are no more.
  virtual Iterator<RCShdPtr<BrBrowsable>> getNextChildSequence() = 0;

  /// @name Stand-in only
  /// @{
  BrBrowsable* getParent() const { return parent_; }
  /// @}

private:
  BrBrowsable* parent_;
};

} // namespace Qv
