#pragma once

#include <array>
#include <cstdint>

namespace Qv {

/// The caller of operator new, behind the standard library's own frames.
enum class Owner { Module, StandIn, Program };

struct Allocations {
  std::int64_t blocks = 0;
  std::int64_t bytes = 0;
};

/// Counts until stopCounting(). Slow, since it walks the stack.
void startCounting();
void stopCounting();
/// Indexed by Owner.
std::array<Allocations, 3> const& getAllocations();

} // namespace Qv
