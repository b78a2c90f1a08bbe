#include "noLeaks.h"
#include "rcShdPtr.h"

namespace Qv {
namespace {

TEST(LockedCounter, returnsTheValueBeforeTheChange) {
  LkCounter<int> counter;
  EXPECT_EQ(counter++, 0);
  EXPECT_EQ(counter--, 1);
  EXPECT_EQ(counter--, 0);
  EXPECT_EQ(counter, -1);
}

template <class Counter> class CountedObject : public NoLeaks {};
using Counters = testing::Types<LkCounter<int>, int>;
TYPED_TEST_SUITE(CountedObject, Counters);

TYPED_TEST(CountedObject, doesNotCopyItsCount) {
  struct Object : RCBase<TypeParam> {};
  RCShdPtr<Object> const source(new Object);
  RCShdPtr<Object> const other = source;
  RCShdPtr<Object> const copy(new Object(*source));
  EXPECT_EQ(copy->getRefCount(), 1);
  *copy = *source;
  EXPECT_EQ(copy->getRefCount(), 1);
  EXPECT_EQ(source->getRefCount(), 2);
}

} // namespace
} // namespace Qv
