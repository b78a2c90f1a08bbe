#include "allocations.h"

#include <gtest/gtest-spi.h>

#include <utility>

namespace Qv {
namespace {

// The operators are called by name, since new expressions may be optimised away.

TEST(FailingAllocations, areReportedWhenLeakedOrSwallowed) {
  static void* leaked = nullptr;
  auto const leaks = [] {
    leaked = ::operator new(1);
    ::operator delete(::operator new(1));
    ::operator delete(std::exchange(leaked, nullptr));
  };
  auto const swallows = [] {
    try {
      ::operator delete(::operator new(1));
    } catch (std::bad_alloc const&) {
    }
  };
  EXPECT_NONFATAL_FAILURE(forEachFailingAllocation(leaks), "leaked when allocation 2 failed");
  ::operator delete(leaked);
  EXPECT_NONFATAL_FAILURE(forEachFailingAllocation(swallows), "without throwing std::bad_alloc");
}

} // namespace
} // namespace Qv
