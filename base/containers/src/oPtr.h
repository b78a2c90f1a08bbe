#pragma once

#include "rcExUtil.h"

#include <type_traits>
#include <utility>

namespace Qv {

/// Sole owner of one heap object, which it deletes. Passing it by value hands the object over and
/// leaves the sender null.
template <class T> class QV_EXPORT OPtr {
public:
  explicit OPtr(T* ptr = nullptr) noexcept : ptr_(ptr) {}
  OPtr(OPtr&& other) noexcept : ptr_(other.release()) {}
  /// Converts to an owner through a base class, whose destructor must be virtual.
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

  /// The object. @throws ExNullPtr when there is none.
  T& operator*() const {
    if (!ptr_)
      RCExUtil::throwExNullPtrOf<T*>();
    return *ptr_;
  }
  /// The object. @throws ExNullPtr when there is none.
  T* operator->() const { return &**this; }

  /// The object, which stays owned; null when there is none.
  T* get() const noexcept { return ptr_; }
  explicit operator bool() const noexcept { return ptr_ != nullptr; }
  /// Gives up the object to the caller, who deletes it.
  [[nodiscard]] T* release() noexcept { return std::exchange(ptr_, nullptr); }

private:
  T* ptr_;
};

/// What a function returns when the caller becomes the sole owner.
template <class T> using OPtrRet = OPtr<T>;

} // namespace Qv
