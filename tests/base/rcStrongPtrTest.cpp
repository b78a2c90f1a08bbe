#include "rcStrongPtr.h"
#include "noLeaks.h"
#include "thrown.h"

namespace Qv {
namespace {

/// A pointee, with or without a count of its own.
template <template <class> class Pointer, class Base> class Node : public Base {
public:
  static inline int living = 0;

  Node() { ++living; }
  ~Node() { --living; }

  Pointer<Node> next;
};
struct Uncounted {};

template <class T> int countOf(RCShdPtr<T> const& pointer) { return pointer->getRefCount(); }
template <class T> int countOf(RCStrongPtr<T> const& pointer) { return pointer.getStrongCount(); }

/// What RCShdPtr and RCStrongPtr have in common.
template <class T> class SharingPointer : public NoLeaks {
protected:
  using Pointee = std::remove_reference_t<decltype(*T())>;
};
using Pointers = testing::Types<RCShdPtr<Node<RCShdPtr, RCBase<LkCounter<int>>>>,
                                RCShdPtr<Node<RCShdPtr, RCBase<int>>>,
                                RCStrongPtr<Node<RCStrongPtr, Uncounted>>>;
TYPED_TEST_SUITE(SharingPointer, Pointers);

TYPED_TEST(SharingPointer, holdsExactlyOneReference) {
  using Pointee = typename TestFixture::Pointee;
  TypeParam pointer(new Pointee);
  TypeParam const other(new Pointee);
  EXPECT_EQ(countOf(other), 1);
  pointer = other;
  EXPECT_EQ(Pointee::living, 1);
  EXPECT_EQ(pointer.get(), other.get());
  EXPECT_EQ(countOf(other), 2);

  pointer = TypeParam(other);
  auto const& self = pointer;
  pointer = self;
  EXPECT_EQ(countOf(other), 2);

  pointer = TypeParam();
  EXPECT_FALSE(pointer);
  EXPECT_EQ(countOf(other), 1);

  pointer = other;
  EXPECT_EQ(countOf(other), 2);
}

TYPED_TEST(SharingPointer, canBeAssignedFromWithinItsPointee) {
  using Pointee = typename TestFixture::Pointee;
  for (bool const moved : {false, true}) {
    SCOPED_TRACE(moved);
    TypeParam node(new Pointee);
    node->next = TypeParam(new Pointee);
    Pointee const* const second = node->next.get();
    if (moved)
      node = std::move(node->next);
    else
      node = node->next;
    EXPECT_EQ(node.get(), second);
    EXPECT_EQ(countOf(node), 1);
    EXPECT_EQ(Pointee::living, 1);
  }
}

TYPED_TEST(SharingPointer, holdsNothingWhenNull) {
  TypeParam const null(nullptr);
  TypeParam const copy(null);
  EXPECT_FALSE(copy);
  std::string const type = typeName(typeid(typename TestFixture::Pointee*));
  EXPECT_EQ(nullPointeeOf([&] { *copy; }), type);
  EXPECT_EQ(nullPointeeOf([&] { copy->next.get(); }), type);
  EXPECT_EQ(RCStrongPtr<int>().getStrongCount(), 0);
}

class StrongPointer : public NoLeaks {};

/// Its destructor inspects the pointer that held it, and may reassign it.
struct Watcher {
  RCStrongPtr<Watcher>& holder;
  bool replaces;

  ~Watcher() {
    EXPECT_NE(holder.get(), this);
    EXPECT_EQ(holder.getStrongCount() > 0, bool(holder));
    if (replaces)
      holder = RCStrongPtr<Watcher>(new Watcher{holder, false});
  }
};

TEST_F(StrongPointer, hasReleasedItsPointeeWhenTheDestructorRuns) {
  for (bool const replaces : {false, true}) {
    RCStrongPtr<Watcher> pointer;
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer, replaces});
    pointer = RCStrongPtr<Watcher>(new Watcher{pointer, false});
    EXPECT_TRUE(pointer);
  }
}

} // namespace
} // namespace Qv
