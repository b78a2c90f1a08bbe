#include "allocations.h"
#include "nullPointee.h"
#include "rcStrongPtr.h"

namespace Qv {
namespace {

struct Plain {
  static inline int living = 0;

  Plain() { ++living; }
  ~Plain() { --living; }

  RCStrongPtr<Plain> next;
};
using Ptr = RCStrongPtr<Plain>;

class RCStrongPtrTest : public NoLeaks {
protected:
  ~RCStrongPtrTest() override { EXPECT_EQ(Plain::living, 0); }
};

TEST_F(RCStrongPtrTest, eachPointerIsOneStrongReference) {
  Ptr const pointer(new Plain);
  EXPECT_EQ(pointer.getStrongCount(), 1);
  {
    Ptr const copy(pointer);
    EXPECT_EQ(copy.get(), pointer.get());
    EXPECT_EQ(pointer.getStrongCount(), 2);
  }
  EXPECT_EQ(pointer.getStrongCount(), 1);
  EXPECT_EQ(Plain::living, 1);
}

TEST_F(RCStrongPtrTest, nullHoldsNothing) {
  Ptr const null(nullptr);
  Ptr const copy(null);
  EXPECT_FALSE(copy);
  EXPECT_EQ(copy.getStrongCount(), 0);
  EXPECT_EQ(nullPointeeOf([&] { *copy; }), "Qv::(anonymous namespace)::Plain*");
  EXPECT_EQ(nullPointeeOf([&] { copy->next.get(); }), "Qv::(anonymous namespace)::Plain*");
}

TEST_F(RCStrongPtrTest, assignmentMovesTheStrongReference) {
  Ptr pointer(new Plain);
  Ptr const other(new Plain);
  pointer = other;
  EXPECT_EQ(Plain::living, 1);
  EXPECT_EQ(pointer.get(), other.get());
  EXPECT_EQ(other.getStrongCount(), 2);

  pointer = Ptr(other);
  auto const& self = pointer;
  pointer = self;
  EXPECT_EQ(other.getStrongCount(), 2);

  pointer = Ptr();
  EXPECT_FALSE(pointer);
  EXPECT_EQ(other.getStrongCount(), 1);

  pointer = other;
  EXPECT_EQ(pointer->next.getStrongCount(), 0);
  EXPECT_EQ(other.getStrongCount(), 2);
}

TEST_F(RCStrongPtrTest, assigningNullDeletesTheUnsharedPointee) {
  Ptr pointer(new Plain);
  pointer = Ptr();
  EXPECT_EQ(Plain::living, 0);
  EXPECT_EQ(pointer.getStrongCount(), 0);
}

TEST_F(RCStrongPtrTest, assignmentFromWithinThePointee) {
  Ptr head(new Plain);
  head->next = Ptr(new Plain);
  Plain const* const second = head->next.get();
  head = head->next;
  EXPECT_EQ(head.get(), second);
  EXPECT_EQ(head.getStrongCount(), 1);
  EXPECT_EQ(Plain::living, 1);
}

TEST_F(RCStrongPtrTest, pointeeDiesBehindANullPointer) {
  struct Watcher {
    RCStrongPtr<Watcher>& holder;
    int& sightings;

    ~Watcher() {
      if (!holder && holder.getStrongCount() == 0)
        ++sightings;
    }
  };
  int sightings = 0;
  {
    RCStrongPtr<Watcher> pointer;
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer, sightings});
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer, sightings});
    EXPECT_EQ(sightings, 1);
  }
  EXPECT_EQ(sightings, 2);
}

TEST_F(RCStrongPtrTest, pointeeIsDeletedWhenTheBlockCannotBeAllocated) {
  EXPECT_EQ(forEachFailingAllocation([] { Ptr const pointer(new Plain); }), 2);
}

} // namespace
} // namespace Qv
