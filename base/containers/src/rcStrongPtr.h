#pragma once

// Shared ownership of objects without a count of their own, such as containers: the counts live
// in a separate block, which is itself counted and may outlive the pointee.

#include "rcShdPtr.h"

#include <memory>

namespace Qv {

/// The count block: RCBase counts the pointers to the block, the strong count those that keep the
/// pointee alive.
template <class Counter> class QV_EXPORT RCSWCount : public RCBase<Counter> {
public:
  void acquireStrong() noexcept { strong_++; }
  /// @returns whether it was the last strong reference.
  bool releaseStrong() noexcept { return strong_-- == 1; }
  int getStrongCount() const noexcept { return strong_; }

protected:
  ~RCSWCount() override = default;

private:
  Counter strong_{};
};

/// Shared pointer to a `T` without an RCBase.
/// Invariant: the count block is null if and only if the pointee is.
template <class T, class Counter> class QV_EXPORT RCStrongBasePtr {
public:
  /// Takes ownership of `ptr`, which may be null. @throws std::bad_alloc after deleting `ptr`.
  explicit RCStrongBasePtr(T* ptr = nullptr) : ptr_(nullptr) {
    if (ptr) {
      std::unique_ptr<T> owner(ptr);
      block_ = RCShdPtr<Block>(new Block);
      block_->acquireStrong();
      ptr_ = owner.release();
    }
  }
  RCStrongBasePtr(RCStrongBasePtr const& other) : ptr_(nullptr) { assign(other); }
  /// The pointee's destructor sees this pointer as null.
  ~RCStrongBasePtr() {
    T* const ptr = std::exchange(ptr_, nullptr);
    RCShdPtr<Block> const block = std::move(block_);
    if (block && block->releaseStrong())
      delete ptr;
  }

  RCStrongBasePtr& operator=(RCStrongBasePtr const& other) {
    if (this != &other)
      assign(other);
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

  /// Takes no reference; may be null.
  T* get() const noexcept { return ptr_; }
  explicit operator bool() const noexcept { return ptr_ != nullptr; }
  /// The number of strong pointers to the pointee; 0 for null.
  int getStrongCount() const noexcept { return block_ ? block_->getStrongCount() : 0; }

protected:
  /// Shares the pointee of `other`. @throws ExNullPtr if `other` has no count block; this
  /// pointer is then null.
  void assign(RCStrongBasePtr const& other) {
    if (ptr_ == other.ptr_ && block_ == other.block_)
      return;
    // The old pointee is released last: `other` may be a part of it, and its destructor may read
    // this pointer or assign to it.
    RCStrongBasePtr old;
    std::swap(old.ptr_, ptr_);
    std::swap(old.block_, block_);
    if (other.ptr_) {
      other.block_->acquireStrong();
      block_ = other.block_;
      ptr_ = other.ptr_;
    }
  }

private:
  using Block = RCSWCount<Counter>;

  T* ptr_;
  RCShdPtr<Block> block_;
};

/// RCStrongBasePtr with the atomic counter.
template <class T> class QV_EXPORT RCStrongPtr : public RCStrongBasePtr<T, LkCounter<int>> {
public:
  using RCStrongBasePtr<T, LkCounter<int>>::RCStrongBasePtr;
  RCStrongPtr(RCStrongPtr const& other) = default;
  RCStrongPtr& operator=(RCStrongPtr const& other) = default;
  ~RCStrongPtr();
};

// A template instance exports a defaulted destructor only if it is defaulted out of class.
template <class T> inline RCStrongPtr<T>::~RCStrongPtr() = default;

} // namespace Qv
