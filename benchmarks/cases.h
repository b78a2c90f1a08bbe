#pragma once

#include "allocations.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace Qv {

/// A loop that runs a given number of times and reads no clock, so that its instructions can be
/// counted exactly. Stands in for a `benchmark::State`.
class CountedLoop {
public:
  /// @param allocations whether to count the loop's allocations.
  explicit CountedLoop(std::int64_t times, bool allocations = false)
      : left_(times), allocations_(allocations) {}

  struct End {};
  struct Pass {};
  CountedLoop& begin() {
    if (allocations_)
      startCounting();
    return *this;
  }
  End end() const { return {}; }
  bool operator!=(End /*end*/) const {
    if (left_ == 0)
      stopCounting();
    return left_ > 0;
  }
  void operator++() { --left_; }
  Pass operator*() const { return {}; }

private:
  std::int64_t left_;
  bool allocations_;
};

/// All cases. A name that ends in `/N` or `/NxM` gives the number of elements per pass.
class Cases {
public:
  /// @param body is called with a loop (a `benchmark::State` or a CountedLoop) and runs
  /// a range-for over it, the body of which is measured.
  template <class Body> void add(std::string const& name, Body body) {
    benchmark::RegisterBenchmark(name.c_str(), [body](benchmark::State& state) { body(state); });
    counted_[name] = [body](CountedLoop loop) { body(loop); };
  }

  void addPointers();
  void addIterators();
  void addModule();
  void addLoading();

  /// @throws std::invalid_argument if there is no such case.
  void run(std::string const& name, CountedLoop loop) const {
    auto const found = counted_.find(name);
    if (found == counted_.end())
      throw std::invalid_argument("unknown case \"" + name + "\"");
    found->second(loop);
  }

private:
  std::map<std::string, std::function<void(CountedLoop)>> counted_;
};

} // namespace Qv
