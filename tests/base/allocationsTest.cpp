#include "allocations.h"

#include "thrown.h"

#include <gtest/gtest.h>

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
  auto const reportOf = [](auto f) {
    return std::string(thrownBy<std::logic_error>([&] { forEachFailingAllocation(f); }).what());
  };
  EXPECT_EQ(reportOf(leaks), "1 allocations leaked when allocation 2 failed");
  ::operator delete(leaked);
  EXPECT_EQ(reportOf(swallows), "allocation 1 failed without throwing std::bad_alloc");
}

} // namespace
} // namespace Qv
