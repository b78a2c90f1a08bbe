#pragma once

#include "rcExUtil.h"

#include <type_traits>
#include <utility>

namespace Qv {

/// Sole owner of a heap object. Passing it by value transfers ownership and leaves the sender null.
template <class T> class QV_EXPORT OPtr {
public:
  explicit OPtr(T* ptr = nullptr) noexcept : ptr_(ptr) {}
  OPtr(OPtr&& other) noexcept : ptr_(other.release()) {}
  /// Converts to an owner of a base class, whose destructor must be virtual.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  OPtr(OPtr<U>&& other) noexcept : ptr_(other.release()) {
    static_assert(std::has_virtual_destructor_v<T>);
  }
  ~OPtr() { delete ptr_; }

  OPtr& operator=(OPtr&& other) noexcept {
    T* const taken = other.release();
    delete std::exchange(ptr_, taken);
    return *this;
  }

  /// @throws ExNullPtr if null.
  T& operator*() const {
    if (!ptr_)
      RCExUtil::throwExNullPtrOf<T*>();
    return *ptr_;
  }
  /// @throws ExNullPtr if null.
  T* operator->() const { return &**this; }

  /// Keeps ownership; may be null.
  T* get() const noexcept { return ptr_; }
  explicit operator bool() const noexcept { return ptr_ != nullptr; }
  /// Transfers ownership to the caller.
  [[nodiscard]] T* release() noexcept { return std::exchange(ptr_, nullptr); }

private:
  T* ptr_;
};

/// Return type of functions that transfer ownership to the caller.
template <class T> using OPtrRet = OPtr<T>;

} // namespace Qv
