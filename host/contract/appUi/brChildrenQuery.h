#pragma once

#include "iterator.h"

namespace Qv {

class BrBrowsable;

/// Enumerates the children of an item, sequence by sequence, until an empty one.
class QV_EXPORT BrChildrenQuery : public RCBase<LkCounter<int>> {
protected:
  ~BrChildrenQuery() override;

public:
  /// @param parent is not owned and must outlive the query.
  explicit BrChildrenQuery(BrBrowsable* parent);

  /// Starts the enumeration anew.
  virtual void reset() = 0;
  /// The next children; empty when there are no more.
  virtual Iterator<RCShdPtr<BrBrowsable>> getNextChildSequence() = 0;

  /// @name Stand-in only
  /// @{
  /// The item whose children are enumerated.
  BrBrowsable* getParent() const { return parent_; }
  /// @}

private:
  BrBrowsable* parent_;
};

} // namespace Qv
