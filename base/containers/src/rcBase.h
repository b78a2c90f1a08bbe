#pragma once

// Intrusive reference counting: the count lives in the object, so any raw pointer to a counted
// object can become a counting pointer again, and one allocation serves object and count.

#include "qvExport.h"

#include <atomic>

namespace Qv {

/// A counter that several threads may change. All operations are sequentially consistent; the
/// decrement that ends a life must see every write made through the other pointers before.
template <class T> class QV_EXPORT LkCounter {
public:
  /// Returns the value before the change.
  T operator++(int) noexcept { return value_.fetch_add(1, std::memory_order_seq_cst); }
  /// Returns the value before the change.
  T operator--(int) noexcept { return value_.fetch_sub(1, std::memory_order_seq_cst); }
  /// Returns the value after the change.
  T operator--() noexcept { return (*this)-- - 1; }

  /// The value at this moment.
  operator T() const noexcept { return value_.load(std::memory_order_seq_cst); }

private:
  std::atomic<T> value_{0};
};

/// Base of every counted object. It must be the first base, so that the address of an object is
/// the address of its RCBase.
/// @tparam Counter `LkCounter<int>`, or `int` for objects that stay on one thread.
///
/// Both instances stand in the base library, so that everyone shares their identity. What counts is
/// always inlined: a library imports nothing of them but the destructor and the identity.
template <class Counter> class QV_EXPORT RCBase {
public:
  /// Takes one reference.
  [[gnu::always_inline]] void acquire() const noexcept { count_++; }

  /// Gives one reference back; the last one deletes the object, whose destructor may be protected.
  [[gnu::always_inline]] void release() const noexcept {
    // Compared with 0, a plain count takes one instruction less.
    if (--count_ == 0)
      delete this;
  }

  /// The number of references held at this moment.
  [[gnu::always_inline]] int getRefCount() const noexcept { return count_; }

  /// The address of this sub-object.
  [[gnu::always_inline]] void const* asRCBase() const noexcept { return this; }

protected:
  RCBase() noexcept = default;
  /// A copy is a new object that nobody holds yet.
  [[gnu::always_inline]] RCBase(RCBase const& /*other*/) noexcept {}
  /// The references belong to the objects, not to their values: both counts stay.
  RCBase& operator=(RCBase const& /*other*/) noexcept { return *this; }
  virtual ~RCBase();

private:
  mutable Counter count_{};
};

// An instance exports a defaulted destructor only when it is defaulted outside the class.
template <class Counter> inline RCBase<Counter>::~RCBase() = default;

extern template class QV_EXPORT RCBase<LkCounter<int>>;
extern template class QV_EXPORT RCBase<int>;

} // namespace Qv
