#pragma once

// Linking this replaces operator new and delete in the program and in all of its libraries.

#include <gtest/gtest.h>

#include <new>

namespace Qv {

/// The number of blocks of operator new not yet deleted.
long liveAllocations() noexcept;

/// Makes the n-th throwing allocation after its construction, on any thread, throw std::bad_alloc.
/// One at a time.
class FailingAllocation {
public:
  explicit FailingAllocation(int n) noexcept;
  ~FailingAllocation();
  FailingAllocation(FailingAllocation const&) = delete;
  FailingAllocation& operator=(FailingAllocation const&) = delete;

  bool wasReached() const noexcept;
};

/// Runs `f` with its first, second, third ... allocation failing, until a run does not reach the
/// failure; runs `check` after each failed run. Each failed run must throw std::bad_alloc, and no
/// run may leak. Stops at the first run that breaks this.
/// @returns the number of allocations that failed.
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
    long const leaked = liveAllocations() - before;
    if (thrown != reached)
      ADD_FAILURE() << "allocation " << n << " failed without throwing std::bad_alloc";
    else if (leaked != 0)
      ADD_FAILURE() << leaked << " allocations leaked when allocation " << n << " failed";
    else if (reached)
      continue;
    return n - 1;
  }
}

/// A test that must not leak. The destructor of a derived class must free what its
/// constructor allocates.
class NoLeaks : public testing::Test {
protected:
  NoLeaks() {
    // A thread's first trace allocates what the thread then keeps.
    { SCOPED_TRACE(""); }
    before_ = liveAllocations();
  }
  ~NoLeaks() override {
    // Recording a failure allocates too.
    if (!HasFailure()) {
      EXPECT_EQ(liveAllocations() - before_, 0) << "allocations leaked";
    }
  }

private:
  long before_ = 0;
};

} // namespace Qv
