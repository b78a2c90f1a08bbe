#include "iteratorSTL.imp.h"
#include "noLeaks.h"

#include <atomic>
#include <barrier>
#include <latch>
#include <numeric>
#include <optional>
#include <thread>
#include <utility>

namespace Qv {
namespace {

constexpr int Threads = 4;
constexpr int Rounds = 50;
constexpr long SumOfAll = Threads * (Threads + 1) / 2;

/// Runs `work(0)`, `work(1)` ... on threads that start together, and `meanwhile` on this one.
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

/// Each thread writes its own slot; the destructor, on whichever thread, reads them all.
template <class Base> class Slots : public Base {
public:
  explicit Slots(std::vector<long>& sums) : sums_(sums) {}
  ~Slots() { sums_.push_back(std::accumulate(slots.begin(), slots.end(), 0L)); }

  std::vector<long> slots = std::vector<long>(Threads);

private:
  std::vector<long>& sums_;
};
struct Uncounted {};

template <class Pointer> class ThreadedPointer : public NoLeaks {};
using Pointers =
    testing::Types<RCShdPtr<Slots<RCBase<LkCounter<int>>>>, RCStrongPtr<Slots<Uncounted>>>;
TYPED_TEST_SUITE(ThreadedPointer, Pointers);

TYPED_TEST(ThreadedPointer, showsItsLastOwnerAllWrites) {
  using Pointer = TypeParam;
  using Pointee = std::remove_reference_t<decltype(*Pointer())>;
  std::vector<long> sums;
  sums.reserve(Rounds);
  for (int round = 0; round < Rounds; ++round) {
    // The threads hold all references, so one of them deletes the pointee.
    std::vector<Pointer> held(Threads, Pointer(new Pointee(sums)));
    std::barrier counted(Threads);
    auto const work = [&](int i) {
      Pointer own(held[i]);
      held[i] = Pointer();
      for (int k = 0; k < 50; ++k) {
        Pointer copy(own);
        own = Pointer(copy);
      }
      // Only the release follows, so nothing else publishes the writes.
      counted.arrive_and_wait();
      own->slots[i] = i + 1;
    };
    runTogether(work, [] {});
  }
  EXPECT_EQ(sums, std::vector<long>(Rounds, SumOfAll));
}

/// Adds its value to the sum when destroyed.
struct Element {
  long value;
  long* sum;

  ~Element() { *sum += value; }
};
using Elements = List<Element>;
using Engine = IteratorSTL<Elements, RCStrongPtr<Elements>, IteratorAccessorPassthrough>;

class ThreadedIterator : public NoLeaks {};

TEST_F(ThreadedIterator, movesOnItsOwnThreadAndInPlaceWhenNoLongerShared) {
  for (int round = 0; round < Rounds; ++round) {
    long sum = 0;
    {
      RCStrongPtr<Elements> elements(new Elements);
      for (int i = 0; i < Threads; ++i)
        elements->push_back({0, &sum});
      auto* const engine = new Engine(elements);
      elements = RCStrongPtr<Elements>();
      Iterator<Element> mover{RCPvtEngPtr<IteratorImp<Element>>(engine)};
      std::vector<std::optional<Iterator<Element>>> held(Threads, mover);
      // Relaxed: only the count itself may order the reads before the move.
      std::atomic<int> left{0};
      auto const work = [&](int i) {
        EXPECT_TRUE(std::as_const(*held[i]).atBegin());
        Iterator<Element> own(*held[i]);
        held[i].reset();
        for (int k = 0; k < i; ++k)
          own++;
        own->value = i + 1;
        left.fetch_add(1, std::memory_order_relaxed);
      };
      runTogether(work, [&] {
        while (left.load(std::memory_order_relaxed) != Threads)
          std::this_thread::yield();
        mover.next();
        EXPECT_FALSE(engine->atBegin()) << "moved in place";
      });
    }
    EXPECT_EQ(sum, SumOfAll);
  }
}

} // namespace
} // namespace Qv
