#include "allocations.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>

namespace Qv {

namespace {

// Relaxed: counting must not synchronise the threads under test, which would hide their races.
constexpr auto Relaxed = std::memory_order_relaxed;
std::atomic<long> live{0};
std::atomic<int> untilFailure{0};

void* allocateOrNull(std::size_t size) noexcept {
  // The exact size, so that a sanitizer detects an access just past the block.
  void* const block = std::malloc(std::max<std::size_t>(size, 1));
  if (block)
    live.fetch_add(1, Relaxed);
  return block;
}

void* allocate(std::size_t size) {
  bool const fails = untilFailure.load(Relaxed) > 0 && untilFailure.fetch_sub(1, Relaxed) == 1;
  void* const block = fails ? nullptr : allocateOrNull(size);
  if (!block)
    throw std::bad_alloc();
  return block;
}

void deallocate(void* block) noexcept {
  if (block)
    live.fetch_sub(1, Relaxed);
  std::free(block);
}

} // namespace

long liveAllocations() noexcept { return live.load(Relaxed); }

FailingAllocation::FailingAllocation(int n) noexcept { untilFailure.store(n, Relaxed); }
FailingAllocation::~FailingAllocation() { untilFailure.store(0, Relaxed); }
bool FailingAllocation::wasReached() const noexcept { return untilFailure.load(Relaxed) <= 0; }

} // namespace Qv

// All forms but the over-aligned ones, which nothing here needs, are replaced, since a sanitizer's
// own forms do not call each other. The nothrow forms never fail: their callers carry on, so a
// test could expect nothing.

using NoThrow = std::nothrow_t;

void* operator new(std::size_t n) { return Qv::allocate(n); }
void* operator new[](std::size_t n) { return Qv::allocate(n); }
void* operator new(std::size_t n, NoThrow const&) noexcept { return Qv::allocateOrNull(n); }
void* operator new[](std::size_t n, NoThrow const&) noexcept { return Qv::allocateOrNull(n); }

void operator delete(void* p) noexcept { Qv::deallocate(p); }
void operator delete[](void* p) noexcept { Qv::deallocate(p); }
void operator delete(void* p, std::size_t) noexcept { Qv::deallocate(p); }
void operator delete[](void* p, std::size_t) noexcept { Qv::deallocate(p); }
void operator delete(void* p, NoThrow const&) noexcept { Qv::deallocate(p); }
void operator delete[](void* p, NoThrow const&) noexcept { Qv::deallocate(p); }
