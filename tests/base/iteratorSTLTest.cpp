#include "allocations.h"
#include "iteratorSTL.imp.h"
#include "nullPointee.h"

#include <algorithm>
#include <utility>

namespace Qv {
namespace {

template <class Container, class Accessor = IteratorAccessorPassthrough>
using Engine = IteratorSTL<Container, RCStrongPtr<Container>, Accessor>;

/// The elements 0, 1, 2 ...
template <class Container> RCStrongPtr<Container> containerOf(int size) {
  RCStrongPtr<Container> const container(new Container);
  for (int i = 0; i < size; ++i)
    container->push_back(i);
  return container;
}
template <class Container> RCPvtEngPtr<Engine<Container>> engineOver(int size) {
  return RCPvtEngPtr<Engine<Container>>(new Engine<Container>(containerOf<Container>(size)));
}
/// Reads the position: `begin 0`, `1`, `end` ...
std::string place(Iterator<int> const& it) {
  return (it.atBegin() ? "begin " : "") + (it.atEnd() ? "end" : std::to_string(it.item()));
}
/// What place() reads at element `index` of `size`.
std::string placeOf(int index, int size) {
  return (index == 0 ? "begin " : "") + (index == size ? "end" : std::to_string(index));
}

/// Expects that a move is refused, with that line, and leaves the iterator where it stands.
template <class Move> void expectOutOfRange(Iterator<int>& it, int line, Move move) {
  std::string const before = place(it);
  try {
    move();
    ADD_FAILURE() << "left the range";
  } catch (IteratorEx::ExOutOfRange const& ex) {
    EXPECT_EQ(ex.getFile(), std::string(".\\base/containers/src/iteratorSTL.imp.h"));
    EXPECT_EQ(ex.getLine(), line);
  }
  EXPECT_EQ(place(it), before);
}

template <class Container> class IteratorSTLTest : public NoLeaks {};
using Containers = testing::Types<List<int>, Vector<int>>;
TYPED_TEST_SUITE(IteratorSTLTest, Containers);

TYPED_TEST(IteratorSTLTest, stepsThroughEveryPosition) {
  for (int const size : {0, 1, 3}) {
    SCOPED_TRACE(size);
    Iterator<int> it = makeIterator(containerOf<TypeParam>(size));
    for (int i = 0; i < size; ++i, it.next())
      EXPECT_EQ(place(it), placeOf(i, size));
    EXPECT_EQ(place(it), placeOf(size, size));
    EXPECT_EQ(it.getCardinality(), size);
    expectOutOfRange(it, 148, [&] { it.next(); });
    expectOutOfRange(it, 148, [&] { it++; });

    for (int i = size - 1; i >= 0; --i)
      EXPECT_EQ(place(it.previous()), placeOf(i, size));
    expectOutOfRange(it, 159, [&] { it.previous(); });
    expectOutOfRange(it, 159, [&] { it--; });
  }
}

TYPED_TEST(IteratorSTLTest, jumpsToEitherSide) {
  for (int const size : {0, 1, 3}) {
    SCOPED_TRACE(size);
    std::string const last = placeOf(std::max(size - 1, 0), size);
    Iterator<int> it = makeIterator(containerOf<TypeParam>(size));
    EXPECT_EQ(place(it.last()), last);
    EXPECT_EQ(place(it.first()), placeOf(0, size));
    EXPECT_EQ(place(it.end()), placeOf(size, size));
    EXPECT_EQ(place(it.last()), last);
    EXPECT_EQ(place(it.end().first()), placeOf(0, size));
  }
}

TYPED_TEST(IteratorSTLTest, clonesShareTheContainer) {
  RCStrongPtr<TypeParam> const container = containerOf<TypeParam>(2);
  {
    RCPvtEngPtr<Engine<TypeParam>> const engine(new Engine<TypeParam>(container));
    engine->next();
    auto* const clone = engine->clone();
    EXPECT_EQ(clone->getRefCount(), 0);
    RCPvtEngPtr<Engine<TypeParam>> const holder(clone);
    EXPECT_EQ(container.getStrongCount(), 3);

    EXPECT_TRUE(clone->isEqual(*engine));
    clone->item() = 7;
    EXPECT_EQ(std::as_const(*engine).item(), 7);
    EXPECT_EQ(&clone->item(), &container->back());
  }
  EXPECT_EQ(container.getStrongCount(), 1);
}

TYPED_TEST(IteratorSTLTest, equalOnTheSameElementOrAtBothEnds) {
  auto const engine = engineOver<TypeParam>(2);
  auto const other = engineOver<TypeParam>(2);
  auto const empty = engineOver<TypeParam>(0);
  RCPvtEngPtr<Engine<TypeParam>> const clone(engine->clone());
  auto const equal = [&](auto const& left, auto const& right) {
    EXPECT_EQ(left->isEqual(*right), right->isEqual(*left));
    return left->isEqual(*right);
  };
  EXPECT_TRUE(equal(engine, engine));
  EXPECT_TRUE(equal(engine, clone));
  EXPECT_FALSE(equal(engine, other)) << "equal values are not the same element";
  EXPECT_FALSE(equal(engine, empty));
  clone->next();
  EXPECT_FALSE(equal(engine, clone));
  engine->end();
  EXPECT_FALSE(equal(engine, clone));
  EXPECT_FALSE(equal(engine, other)) << "one's end is not the other's first element";
  EXPECT_TRUE(equal(engine, empty));
  clone->end();
  other->end();
  EXPECT_TRUE(equal(engine, clone));
  EXPECT_TRUE(equal(engine, other));
}

TYPED_TEST(IteratorSTLTest, isNotComparedWithAnotherKindOfEngine) {
  struct OtherAccessor : IteratorAccessorPassthrough {};
  auto const container = containerOf<TypeParam>(1);
  RCPvtEngPtr<IteratorImp<int>> const engine(new Engine<TypeParam>(container));
  RCPvtEngPtr<IteratorImp<int>> const other(new Engine<TypeParam, OtherAccessor>(container));
  EXPECT_THROW(engine->isEqual(*other), std::bad_cast);
}

TYPED_TEST(IteratorSTLTest, needsAContainer) {
  EXPECT_EQ(nullPointeeOf([] { makeIterator(RCStrongPtr<TypeParam>()); }),
            typeName(typeid(TypeParam*)));
}

TYPED_TEST(IteratorSTLTest, losesNothingWhenAnAllocationFails) {
  // At least the container, its elements, the count block, the engine and its clone.
  EXPECT_GE(forEachFailingAllocation([] {
              Iterator<int> it = makeIterator(containerOf<TypeParam>(2));
              it++;
            }),
            5);
}

} // namespace
} // namespace Qv
