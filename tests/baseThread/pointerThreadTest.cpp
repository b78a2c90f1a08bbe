#include "allocations.h"
#include "rcStrongPtr.h"
#include "runTogether.h"

#include <barrier>
#include <numeric>

namespace Qv {
namespace {

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

TYPED_TEST(ThreadedPointer, showsItsLastHolderWhatAllOthersWrote) {
  using Pointer = TypeParam;
  using Pointee = std::remove_reference_t<decltype(*Pointer())>;
  std::vector<long> sums;
  sums.reserve(Rounds);
  for (int round = 0; round < Rounds; ++round) {
    // The threads hold all references, so one of them deletes the pointee.
    std::vector<Pointer> held(Threads, Pointer(new Pointee(sums)));
    std::barrier counted(Threads);
    runTogether([&](int i) {
      Pointer own(held[i]);
      held[i] = Pointer();
      for (int k = 0; k < 50; ++k) {
        Pointer copy(own);
        own = Pointer(copy);
      }
      // All that follows is the release, so nothing else passes the writes on.
      counted.arrive_and_wait();
      own->slots[i] = i + 1;
    });
  }
  EXPECT_EQ(sums, std::vector<long>(Rounds, Threads * (Threads + 1) / 2));
}

} // namespace
} // namespace Qv
