#pragma once

// Shared pointer to counted objects: as wide as a raw pointer, and one increment per copy. Use it
// for classes derived from RCBase, and RCStrongPtr for the rest.

#include "rcBase.h"
#include "rcExUtil.h"

#include <ostream>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace Qv {

/// The raw pointer behind RCShdPtr, and its diagnostic text.
template <class T> class QV_EXPORT RCBasePtr {
public:
  /// Writes the dynamic type, `T`, the count and the addresses, without a newline.
  void dump(std::ostream& os) const {
    void const* const rcBase = ptr_ ? ptr_->asRCBase() : nullptr;
    os << "Pointee type = " << (ptr_ ? typeName(typeid(*ptr_)) : "null")
       << ", T type = " << typeName(typeid(T))
       << ", ref: " << std::to_string(ptr_ ? ptr_->getRefCount() : 0)
       << ", pointer:" << static_cast<void const*>(ptr_) << ", RCBase pointer: " << rcBase;
  }

protected:
  explicit RCBasePtr(T* ptr) noexcept : ptr_(ptr) {}
  RCBasePtr(RCBasePtr const&) noexcept = default;
  RCBasePtr& operator=(RCBasePtr const&) noexcept = default;
  ~RCBasePtr() = default;

  T* ptr_;
};

/// Shared pointer to an object derived from RCBase.
template <class T> class QV_EXPORT RCShdPtr : public RCBasePtr<T> {
  template <class U> friend class RCShdPtr;

public:
  /// Takes a reference to `ptr`, which may be null.
  explicit RCShdPtr(T* ptr = nullptr) noexcept : RCBasePtr<T>(ptr) { acquire(); }
  RCShdPtr(RCShdPtr const& other) noexcept : RCBasePtr<T>(other) { acquire(); }
  RCShdPtr(RCShdPtr&& other) noexcept : RCBasePtr<T>(std::exchange(other.ptr_, nullptr)) {}

  /// Converts to a base class or to const.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  RCShdPtr(RCShdPtr<U> const& other) noexcept : RCShdPtr(other.get()) {}
  /// Transfers the reference and leaves `other` null.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  RCShdPtr(RCShdPtr<U>&& other) noexcept : RCBasePtr<T>(std::exchange(other.ptr_, nullptr)) {}

  ~RCShdPtr() { release(this->ptr_); }

  RCShdPtr& operator=(RCShdPtr const& other) noexcept {
    if (other.ptr_ != this->ptr_) {
      T* const old = std::exchange(this->ptr_, other.ptr_);
      acquire();
      release(old);
    }
    return *this;
  }

  RCShdPtr& operator=(RCShdPtr&& other) noexcept {
    T* const taken = std::exchange(other.ptr_, nullptr);
    release(std::exchange(this->ptr_, taken));
    return *this;
  }

  /// @throws ExNullPtr if null.
  T& operator*() const {
    if (!this->ptr_)
      RCExUtil::throwExNullPtrOf<T*>();
    return *this->ptr_;
  }
  /// @throws ExNullPtr if null.
  T* operator->() const { return &**this; }

  /// Takes no reference; may be null.
  T* get() const noexcept { return this->ptr_; }
  explicit operator bool() const noexcept { return this->ptr_ != nullptr; }

  /// Null if the pointee is not a `U`.
  template <class U> RCShdPtr<U> dynamicCast() const noexcept {
    return RCShdPtr<U>(dynamic_cast<U*>(this->ptr_));
  }

  /// Null stays null. @throws ExCastFailed if the pointee is not a `U`.
  template <class U> RCShdPtr<U> checkedCast() const {
    RCShdPtr<U> result = dynamicCast<U>();
    if (this->ptr_ && !result)
      RCExUtil::throwExCastFailed(typeName(typeid(*this->ptr_)).c_str(),
                                  typeName(typeid(U)).c_str());
    return result;
  }

private:
  void acquire() const noexcept {
    if (this->ptr_)
      this->ptr_->acquire();
  }
  static void release(T* ptr) noexcept {
    if (ptr)
      ptr->release();
  }
};

template <class T, class U>
bool operator==(RCShdPtr<T> const& left, RCShdPtr<U> const& right) noexcept {
  return left.get() == right.get();
}

} // namespace Qv
