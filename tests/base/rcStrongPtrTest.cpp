#include "rcStrongPtr.h"
#include "allocations.h"
#include "nullPointee.h"

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

/// Looks at the pointer that held it when it dies, and may put something else there.
struct Watcher {
  RCStrongPtr<Watcher>& holder;
  bool replaces = false;

  ~Watcher() {
    EXPECT_NE(holder.get(), this);
    EXPECT_EQ(holder.getStrongCount() > 0, bool(holder));
    ++died;
    if (replaces)
      holder = RCStrongPtr<Watcher>(new Watcher{holder});
  }

  static inline int died = 0;
};

TEST_F(RCStrongPtrTest, pointeeDiesBehindAPointerThatHasLetItGo) {
  Watcher::died = 0;
  {
    RCStrongPtr<Watcher> pointer;
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer});
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer});
    EXPECT_EQ(Watcher::died, 1);
  }
  EXPECT_EQ(Watcher::died, 2);
}

TEST_F(RCStrongPtrTest, pointeeMayReplaceWhatReplacedIt) {
  Watcher::died = 0;
  {
    RCStrongPtr<Watcher> pointer;
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer, true});
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer});
    EXPECT_EQ(Watcher::died, 2);
  }
  EXPECT_EQ(Watcher::died, 3);
}

TEST_F(RCStrongPtrTest, pointeeIsDeletedWhenTheBlockCannotBeAllocated) {
  EXPECT_EQ(forEachFailingAllocation([] { Ptr const pointer(new Plain); }), 2);
}

} // namespace
} // namespace Qv
