#pragma once

#include "allocations.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace Qv {

/// A loop that runs a given number of times and consults no clock, so that what it executes can be
/// counted to the last instruction. Stands in for a `benchmark::State`.
class CountedLoop {
public:
  /// @param allocations whether what the loop allocates is counted.
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

/// All that is measured. A name that ends in `/N` or `/NxM` says how many elements a pass handles.
class Cases {
public:
  /// @param body is called with a loop (a `benchmark::State` or a CountedLoop) and runs
  /// a range-for over what is measured. What it does around the loop is not measured.
  template <class Body> void add(std::string const& name, Body body) {
    benchmark::RegisterBenchmark(name.c_str(), [body](benchmark::State& state) { body(state); });
    counted_[name] = [body](CountedLoop loop) { body(loop); };
  }

  void addPointers();
  void addIterators();
  void addModule();
  void addLoading();

  /// Runs one case. @throws std::invalid_argument when there is none of that name.
  void run(std::string const& name, CountedLoop loop) const {
    auto const found = counted_.find(name);
    if (found == counted_.end())
      throw std::invalid_argument("there is no case \"" + name + "\"");
    found->second(loop);
  }

private:
  std::map<std::string, std::function<void(CountedLoop)>> counted_;
};

} // namespace Qv
