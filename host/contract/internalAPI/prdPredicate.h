#pragma once

#include "rcShdPtr.h"

#include <string>

namespace Qv {

template <class T> class PrdTerm;

/// A question about a `T`; a value that can be negated and combined.
template <class T> class QV_EXPORT PrdPredicate {
public:
  PrdPredicate(PrdPredicate const& other);
  virtual ~PrdPredicate();

  /// Holds where this one does not.
  PrdPredicate operator!() const;
  /// Holds where both do.
  PrdPredicate operator&&(PrdPredicate const& other) const;

  /// @name Stand-in only
  /// @{
  /// @param term is shared with the copies.
  explicit PrdPredicate(RCShdPtr<PrdTerm<T> const> const& term);

  /// Whether the predicate holds for `element`.
  bool holds(T const& element) const;
  /// The one index key under which all elements lie for which the predicate can hold; null when
  /// it does not confine them so. Lives as long as the predicate.
  std::string const* getIndexKey() const;
  /// @}

private:
  RCShdPtr<PrdTerm<T> const> term_;
};

} // namespace Qv
