#include "allocations.h"
#include "exBase.h"

#include <gtest/gtest-spi.h>

#include <cstdint>
#include <utility>

namespace Qv {
namespace {

// The operators are called by name, or in a library, since new expressions may be optimised away.

TEST(AllocationsTest, countEveryFormOfNew) {
  constexpr auto wide = std::align_val_t(64);
  long const before = liveAllocations();
  void* const one = ::operator new(1);
  void* const array = ::operator new[](1);
  void* const aligned = ::operator new(1, wide);
  void* const noThrow = ::operator new(1, std::nothrow);
  EXPECT_EQ(liveAllocations() - before, 4);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(aligned) % 64, 0U);
  ::operator delete(one);
  ::operator delete[](array);
  ::operator delete(aligned, wide);
  ::operator delete(noThrow);
  EXPECT_EQ(liveAllocations() - before, 0);
}

TEST(AllocationsTest, failOneAfterTheOtherInLibrariesToo) {
  std::string const text(100, 'x');
  int runs = 0;
  auto const makesTwo = [&] {
    ++runs;
    ExBase const first(text.c_str());
    ::operator delete(::operator new(1));
  };
  EXPECT_EQ(forEachFailingAllocation(makesTwo), 2);
  EXPECT_EQ(runs, 3);
}

TEST(AllocationsTest, reportWhatIsLostOrSwallowed) {
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
