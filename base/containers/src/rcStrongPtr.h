#pragma once

// Shared ownership of objects that carry no count of their own, such as containers: the counts
// live in a block beside the pointee. The block has a count of its own, so it may outlive it.

#include "rcShdPtr.h"

#include <memory>

namespace Qv {

/// The count block: how many pointers hold the block (RCBase), and how many of them keep the
/// pointee alive (the strong count).
template <class Counter> class QV_EXPORT RCSWCount : public RCBase<Counter> {
public:
  void acquireStrong() noexcept { strong_++; }
  /// @returns whether it was the last one.
  bool releaseStrong() noexcept { return strong_-- == 1; }
  int getStrongCount() const noexcept { return strong_; }

protected:
  ~RCSWCount() override = default;

private:
  Counter strong_{};
};

/// Strong pointer to a `T` that has no RCBase.
/// Invariant: the count block is null exactly when the pointee is null.
template <class T, class Counter> class QV_EXPORT RCStrongBasePtr {
public:
  /// Takes over `ptr`, which may be null. @throws std::bad_alloc after deleting `ptr`.
  explicit RCStrongBasePtr(T* ptr = nullptr) : ptr_(nullptr) {
    if (ptr) {
      std::unique_ptr<T> owner(ptr);
      block_ = RCShdPtr<Block>(new Block);
      block_->acquireStrong();
      ptr_ = owner.release();
    }
  }
  RCStrongBasePtr(RCStrongBasePtr const& other) : ptr_(nullptr) { assign(other); }
  /// The pointee's destructor finds this pointer null.
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

  /// The pointee. @throws ExNullPtr when there is none.
  T& operator*() const {
    if (!ptr_)
      RCExUtil::throwExNullPtrOf<T*>();
    return *ptr_;
  }
  /// The pointee. @throws ExNullPtr when there is none.
  T* operator->() const { return &**this; }

  /// The raw pointer, which may be null and carries no reference.
  T* get() const noexcept { return ptr_; }
  explicit operator bool() const noexcept { return ptr_ != nullptr; }
  /// How many strong pointers share the pointee; 0 for null.
  int getStrongCount() const noexcept { return block_ ? block_->getStrongCount() : 0; }

protected:
  /// Shares the pointee of `other`. @throws ExNullPtr when `other` lacks its count block; this
  /// pointer is null then.
  void assign(RCStrongBasePtr const& other) {
    if (ptr_ == other.ptr_ && block_ == other.block_)
      return;
    // The old pointee goes last, when this pointer already holds the new one: `other` may live
    // inside it, and its destructor may look at this pointer or assign to it.
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

// An instance exports a defaulted destructor only when it is defaulted outside the class.
template <class T> inline RCStrongPtr<T>::~RCStrongPtr() = default;

} // namespace Qv
