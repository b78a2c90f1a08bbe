#pragma once

// Linking this replaces operator new and delete in the program and in all of its libraries.

#include <gtest/gtest.h>

#include <new>

namespace Qv {

/// How many blocks of operator new have not been deleted yet.
long liveAllocations() noexcept;

/// While it lives, the n-th throwing allocation since its construction, on any thread, throws
/// std::bad_alloc. One at a time.
class FailingAllocation {
public:
  explicit FailingAllocation(int n) noexcept;
  ~FailingAllocation();
  FailingAllocation(FailingAllocation const&) = delete;
  FailingAllocation& operator=(FailingAllocation const&) = delete;

  bool wasReached() const noexcept;
};

/// Runs `f` with its first, second, third ... allocation failing, until it passes without reaching
/// the failure; after each failed run, runs `check`. Each failed run must end in std::bad_alloc,
/// and no run may lose an allocation. Stops at the first run that breaks this.
/// @returns how many allocations were made to fail.
template <class F, class Check = void (*)()>
int forEachFailingAllocation(
    F f, Check check = [] {}) {
  for (int n = 1;; ++n) {
    long const before = liveAllocations();
    bool reached = false;
    bool thrown = false;
    {
      FailingAllocation const failing(n);
      try {
        f();
      } catch (std::bad_alloc const&) {
        thrown = true;
      }
      reached = failing.wasReached();
    }
    if (thrown)
      check();
    long const lost = liveAllocations() - before;
    if (thrown != reached)
      ADD_FAILURE() << "allocation " << n << " failed, and std::bad_alloc did not come out";
    else if (lost != 0)
      ADD_FAILURE() << lost << " allocations were lost when allocation " << n << " failed";
    else if (reached)
      continue;
    return n - 1;
  }
}

/// A test that must end with as many live allocations as it started with. What a derived class
/// makes in its constructor must go with it.
class NoLeaks : public testing::Test {
protected:
  NoLeaks() {
    // The first trace of a thread allocates what the thread then keeps.
    { SCOPED_TRACE(""); }
    before_ = liveAllocations();
  }
  ~NoLeaks() override {
    // The record of a failure is an allocation too.
    if (!HasFailure()) {
      EXPECT_EQ(liveAllocations() - before_, 0) << "allocations were lost";
    }
  }

private:
  long before_ = 0;
};

} // namespace Qv
