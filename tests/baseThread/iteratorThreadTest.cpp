#include "allocations.h"
#include "iteratorSTL.imp.h"
#include "runTogether.h"

#include <atomic>
#include <optional>
#include <utility>

namespace Qv {
namespace {

/// Adds its value to the sum when it dies.
struct Element {
  long value;
  long* sum;

  ~Element() { *sum += value; }
};
using Elements = List<Element>;
using Engine = IteratorSTL<Elements, RCStrongPtr<Elements>, IteratorAccessorPassthrough>;
using It = Iterator<Element>;

class ThreadedIterator : public NoLeaks {
protected:
  /// An engine over as many zeros as there are threads.
  Engine* makeEngine() {
    RCStrongPtr<Elements> const elements(new Elements);
    for (int i = 0; i < Threads; ++i)
      elements->push_back({0, &sum_});
    return new Engine(elements);
  }
  static std::vector<std::optional<It>> copiesOf(It const& it) {
    return std::vector<std::optional<It>>(Threads, it);
  }

  long sum_ = 0;
};

TEST_F(ThreadedIterator, movesOnThreadsOfItsOwn) {
  for (int round = 0; round < Rounds; ++round) {
    sum_ = 0;
    auto held = copiesOf(It(RCPvtEngPtr<IteratorImp<Element>>(makeEngine())));
    runTogether([&](int i) {
      It own(*held[i]);
      held[i].reset();
      for (int k = 0; k < i; ++k)
        own++;
      own->value = i + 1;
    });
    EXPECT_EQ(sum_, Threads * (Threads + 1) / 2);
  }
}

TEST_F(ThreadedIterator, movesInPlaceWhenAllOthersHaveRead) {
  for (int round = 0; round < Rounds; ++round) {
    Engine* const engine = makeEngine();
    It mover{RCPvtEngPtr<IteratorImp<Element>>(engine)};
    auto held = copiesOf(mover);
    // Relaxed: only the count itself may order the reads before the move.
    std::atomic<int> released{0};
    runTogether(
        [&](int i) {
          EXPECT_TRUE(std::as_const(*held[i]).atBegin());
          held[i].reset();
          released.fetch_add(1, std::memory_order_relaxed);
        },
        [&] {
          while (released.load(std::memory_order_relaxed) != Threads)
            std::this_thread::yield();
          mover.next();
          EXPECT_FALSE(engine->atBegin()) << "moved in place";
        });
  }
}

} // namespace
} // namespace Qv
