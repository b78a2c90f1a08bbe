#pragma once

// Linking this replaces operator new and delete in the program and in all of its libraries.

#include <climits>
#include <new>
#include <stdexcept>
#include <string>

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
/// run may leak.
/// @param most how many allocations fail at most.
/// @returns the number of allocations that failed.
/// @throws std::logic_error after the first run that breaks this.
template <class F, class Check = void (*)()>
int forEachFailingAllocation(
    F f, Check check = [] {}, int most = INT_MAX) {
  for (int n = 1; n <= most; ++n) {
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
    std::string const failure = "allocation " + std::to_string(n) + " failed";
    if (thrown != reached)
      throw std::logic_error(failure + " without throwing std::bad_alloc");
    if (leaked != 0)
      throw std::logic_error(std::to_string(leaked) + " allocations leaked when " + failure);
    if (!reached)
      return n - 1;
  }
  return most;
}

} // namespace Qv
