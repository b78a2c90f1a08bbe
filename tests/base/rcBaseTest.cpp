#include "rcBase.h"
#include "allocations.h"

namespace Qv {
namespace {

TEST(LockedCounter, yieldsTheValueBeforeTheChange) {
  LkCounter<int> counter;
  EXPECT_EQ(counter++, 0);
  EXPECT_EQ(counter--, 1);
  EXPECT_EQ(counter--, 0);
  EXPECT_EQ(counter, -1);
}

template <class Counter> class Counted : public RCBase<Counter> {
public:
  explicit Counted(int& deletions) : deletions_(&deletions) {}
  Counted(Counted const&) = default;
  Counted& operator=(Counted const&) = default;

protected:
  ~Counted() override { ++*deletions_; }

private:
  int* deletions_;
};

template <class Counter> class CountedObject : public NoLeaks {};
using Counters = testing::Types<LkCounter<int>, int>;
TYPED_TEST_SUITE(CountedObject, Counters);

TYPED_TEST(CountedObject, goesWithItsLastReference) {
  int deletions = 0;
  auto* const object = new Counted<TypeParam>(deletions);
  EXPECT_EQ(object->getRefCount(), 0);
  object->acquire();
  object->acquire();
  EXPECT_EQ(object->getRefCount(), 2);
  object->release();
  EXPECT_EQ(object->getRefCount(), 1);
  EXPECT_EQ(deletions, 0);
  object->release();
  EXPECT_EQ(deletions, 1);
}

TYPED_TEST(CountedObject, keepsItsCountToItself) {
  int deletions = 0;
  auto* const source = new Counted<TypeParam>(deletions);
  source->acquire();
  source->acquire();
  auto* const copy = new Counted<TypeParam>(*source);
  EXPECT_EQ(copy->getRefCount(), 0);

  copy->acquire();
  *copy = *source;
  EXPECT_EQ(copy->getRefCount(), 1);
  EXPECT_EQ(source->getRefCount(), 2);

  copy->release();
  source->release();
  source->release();
  EXPECT_EQ(deletions, 2);
}

} // namespace
} // namespace Qv
