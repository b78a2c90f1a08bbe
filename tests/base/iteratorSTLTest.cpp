#include "iteratorSTL.imp.h"
#include "noLeaks.h"
#include "thrown.h"

#include <algorithm>
#include <utility>

namespace Qv {
namespace {

template <class Container, class Accessor = IteratorAccessorPassthrough>
using Engine = IteratorSTL<Container, RCStrongPtr<Container>, Accessor>;

/// A container of 0, 1, 2 ...
template <class Container> RCStrongPtr<Container> containerOf(int size) {
  RCStrongPtr<Container> const container(new Container);
  for (int i = 0; i < size; ++i)
    container->push_back(i);
  return container;
}
/// Describes the position: `begin 0`, `1`, `end` ...
std::string place(Iterator<int> const& it) {
  return (it.atBegin() ? "begin " : "") + (it.atEnd() ? "end" : std::to_string(it.item()));
}
/// What place() returns at element `index` of `size`.
std::string placeOf(int index, int size) {
  return (index == 0 ? "begin " : "") + (index == size ? "end" : std::to_string(index));
}

/// Expects a move to throw with that line and to leave the iterator in place.
template <class Move> void expectOutOfRange(Iterator<int>& it, int line, Move move) {
  std::string const before = place(it);
  auto const ex = thrownBy<IteratorEx::ExOutOfRange>(move);
  EXPECT_EQ(ex.getFile(), ".\\base/containers/src/iteratorSTL.imp.h");
  EXPECT_EQ(ex.getLine(), line);
  EXPECT_EQ(place(it), before);
}

template <class Container> class ContainerEngine : public NoLeaks {};
using Containers = testing::Types<List<int>, Vector<int>>;
TYPED_TEST_SUITE(ContainerEngine, Containers);

TYPED_TEST(ContainerEngine, stepsThroughEveryPosition) {
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

    std::string const last = placeOf(std::max(size - 1, 0), size);
    EXPECT_EQ(place(it.last()), last);
    EXPECT_EQ(place(it.first()), placeOf(0, size));
    EXPECT_EQ(place(it.end()), placeOf(size, size));
    EXPECT_EQ(place(it.last()), last);
    EXPECT_EQ(place(it.end().first()), placeOf(0, size));
  }
}

TYPED_TEST(ContainerEngine, sharesItsContainerWithItsClones) {
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

TYPED_TEST(ContainerEngine, equalsEnginesAtTheSameElementOrAtAnyEnd) {
  using Ptr = RCPvtEngPtr<Engine<TypeParam>>;
  Ptr const one(new Engine<TypeParam>(containerOf<TypeParam>(2)));
  Ptr const other(new Engine<TypeParam>(containerOf<TypeParam>(2)));
  Ptr const empty(new Engine<TypeParam>(containerOf<TypeParam>(0)));
  auto const at = [](int position, Ptr const& engine) {
    Ptr const moved(engine->clone());
    for (int i = 0; i < position; ++i)
      moved->next();
    return moved;
  };
  // Engines of the same number are equal.
  std::pair<int, Ptr> const engines[] = {{1, one},          {1, at(0, one)},   {2, at(1, one)},
                                         {3, other},        {4, at(1, other)}, {5, at(2, one)},
                                         {5, at(2, other)}, {5, empty}};
  for (auto const& [left, engine] : engines)
    for (auto const& [right, otherEngine] : engines)
      EXPECT_EQ(engine->isEqual(*otherEngine), left == right) << left << ", " << right;
}

TYPED_TEST(ContainerEngine, isNotComparedWithAnotherClass) {
  struct OtherAccessor : IteratorAccessorPassthrough {};
  auto const container = containerOf<TypeParam>(1);
  RCPvtEngPtr<IteratorImp<int>> const engine(new Engine<TypeParam>(container));
  RCPvtEngPtr<IteratorImp<int>> const other(new Engine<TypeParam, OtherAccessor>(container));
  EXPECT_THROW(engine->isEqual(*other), std::bad_cast);
}

TYPED_TEST(ContainerEngine, needsAContainer) {
  EXPECT_EQ(nullPointeeOf([] { makeIterator(RCStrongPtr<TypeParam>()); }),
            typeName(typeid(TypeParam*)));
}

} // namespace
} // namespace Qv
