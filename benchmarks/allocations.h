#pragma once

#include <array>
#include <cstdint>

namespace Qv {

/// Who calls operator new: the library behind the standard library's own frames.
enum class Owner { Module, StandIn, Program };

struct Allocations {
  std::int64_t blocks = 0;
  std::int64_t bytes = 0;
};

/// Counts from here until stopCounting(). Counting is slow, since it walks the stack.
void startCounting();
void stopCounting();
/// What was counted, by Owner.
std::array<Allocations, 3> const& getAllocations();

} // namespace Qv
