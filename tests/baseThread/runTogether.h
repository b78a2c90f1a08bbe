#pragma once

#include <latch>
#include <thread>
#include <vector>

namespace Qv {

constexpr int Threads = 4;
constexpr int Rounds = 50;

/// Starts `work(0)`, `work(1)` ..., which begin at the same time on a thread each, runs
/// `meanwhile` here, then waits for all.
template <class Work, class Meanwhile> void runTogether(Work work, Meanwhile meanwhile) {
  std::latch start(Threads);
  std::vector<std::jthread> threads;
  for (int i = 0; i < Threads; ++i)
    threads.emplace_back([&, i] {
      start.arrive_and_wait();
      work(i);
    });
  meanwhile();
}
template <class Work> void runTogether(Work work) {
  runTogether(work, [] {});
}

} // namespace Qv
