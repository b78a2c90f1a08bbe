#pragma once

// Intrusive reference counting: the count lives in the object, so any raw pointer to a counted
// object can become a counting pointer again, and one allocation holds both.
//
//   RCShdPtr<Item> a(new Item);   // count 1
//   RCShdPtr<Item> b = a;         // 2
//   a = RCShdPtr<Item>(b.get());  // 2: equal pointers, no change
//   b = RCShdPtr<Item>();         // 1
//   a = RCShdPtr<Item>();         // 0: the item is deleted

#include "qvExport.h"

#include <atomic>
#include <cassert>

namespace Qv {

/// Atomic counter. All operations are sequentially consistent; the decrement to 0 must see every
/// earlier write made through the other pointers.
template <class T> class QV_EXPORT LkCounter {
public:
  T operator++(int) noexcept { return value_.fetch_add(1, std::memory_order_seq_cst); }
  T operator--(int) noexcept { return value_.fetch_sub(1, std::memory_order_seq_cst); }
  T operator--() noexcept { return (*this)-- - 1; }

  operator T() const noexcept { return value_.load(std::memory_order_seq_cst); }

private:
  std::atomic<T> value_{0};
};

/// Base class of every counted object. It must be the first base, so that both have one address.
/// @tparam Counter `LkCounter<int>`, or `int` for objects that stay on one thread.
///
/// Both instances are built into the base library, so that everyone shares their type info.
/// Counting is always inlined; clients import only the destructor and the type info.
template <class Counter> class QV_EXPORT RCBase {
public:
  [[gnu::always_inline]] void acquire() const noexcept { count_++; }

  /// Drops a reference; deletes the object with the last one.
  [[gnu::always_inline]] void release() const noexcept {
    assert(count_ > 0);
    // Comparing with 0 saves an instruction with a plain count.
    if (--count_ == 0)
      delete this;
  }

  [[gnu::always_inline]] int getRefCount() const noexcept { return count_; }

  [[gnu::always_inline]] void const* asRCBase() const noexcept { return this; }

protected:
  RCBase() noexcept = default;
  /// A copy starts without references.
  [[gnu::always_inline]] RCBase(RCBase const& /*other*/) noexcept {}
  /// References belong to objects, not to values: both counts are unchanged.
  RCBase& operator=(RCBase const& /*other*/) noexcept { return *this; }
  virtual ~RCBase();

private:
  mutable Counter count_{};
};

template <class Counter> inline RCBase<Counter>::~RCBase() {
  assert(count_ == 0 && "deleted while referenced");
}

extern template class QV_EXPORT RCBase<LkCounter<int>>;
extern template class QV_EXPORT RCBase<int>;

} // namespace Qv
