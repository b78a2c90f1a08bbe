#include "allocations.h"

#include <gtest/gtest-spi.h>

#include <utility>

namespace Qv {
namespace {

// The operators are called by name, since new expressions may be optimised away.

TEST(FailingAllocations, areReportedWhenLostOrSwallowed) {
  static void* lost = nullptr;
  auto const loses = [] {
    lost = ::operator new(1);
    ::operator delete(::operator new(1));
    ::operator delete(std::exchange(lost, nullptr));
  };
  auto const swallows = [] {
    try {
      ::operator delete(::operator new(1));
    } catch (std::bad_alloc const&) {
    }
  };
  EXPECT_NONFATAL_FAILURE(forEachFailingAllocation(loses), "lost when allocation 2 failed");
  ::operator delete(lost);
  EXPECT_NONFATAL_FAILURE(forEachFailingAllocation(swallows), "did not come out");
}

} // namespace
} // namespace Qv
