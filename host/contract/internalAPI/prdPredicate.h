#pragma once

#include "rcShdPtr.h"

#include <string>

namespace Qv {

/// A predicate on `T`; a value that can be negated and combined.
template <class T> class QV_EXPORT PrdPredicate {
public:
  virtual ~PrdPredicate();

  /// Holds where this does not.
  PrdPredicate operator!() const;
  /// Holds where both do.
  PrdPredicate operator&&(PrdPredicate const& other) const;

  /// @name Stand-in only
  /// @{

  /// @param term is shared with copies.
  explicit PrdPredicate(RCShdPtr<RCBase<LkCounter<int>> const> const& term);

  /// Whether the predicate holds for `element`.
  bool holds(T const& element) const;
  /// The index key that all matching elements share, or null if the predicate implies none. Lives
  /// as long as the predicate.
  std::string const* getIndexKey() const;
  /// @}

private:
  RCShdPtr<RCBase<LkCounter<int>> const> term_;
};

} // namespace Qv
