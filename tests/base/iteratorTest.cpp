#include "iterator.h"
#include "fakeEngine.h"
#include "noLeaks.h"
#include "thrown.h"

namespace Qv {
namespace {

using It = Iterator<int>;

/// "end" or the element.
std::string place(It const& it) { return it.atEnd() ? "end" : std::to_string(it.item()); }

template <class Move> It& postfix(It& it, Move move) {
  It const old = move(it);
  EXPECT_EQ(place(old), "20");
  return it;
}
It& same(It& it, int& item) {
  item += 0;
  return it;
}

/// An operation that needs an unshared engine.
struct Operation {
  char const* name;
  It& (*apply)(It&);
  /// The position that it leads to from 20.
  char const* place;
  /// The number of clones if the engine is not shared.
  int clones;
};
Operation const operations[] = {
    {"first", [](It& it) -> It& { return it.first(); }, "10", 0},
    {"last", [](It& it) -> It& { return it.last(); }, "40", 0},
    {"end", [](It& it) -> It& { return it.end(); }, "end", 0},
    {"next", [](It& it) -> It& { return it.next(); }, "30", 0},
    {"previous", [](It& it) -> It& { return it.previous(); }, "10", 0},
    {"++it", [](It& it) -> It& { return ++it; }, "30", 0},
    {"--it", [](It& it) -> It& { return --it; }, "10", 0},
    {"it++", [](It& it) -> It& { return postfix(it, [](It& i) { return i++; }); }, "30", 1},
    {"it--", [](It& it) -> It& { return postfix(it, [](It& i) { return i--; }); }, "10", 1},
    {"item", [](It& it) -> It& { return same(it, it.item()); }, "20", 0},
    {"*it", [](It& it) -> It& { return same(it, *it); }, "20", 0},
    {"it->", [](It& it) -> It& { return same(it, *it.operator->()); }, "20", 0},
};

class MovedIterator : public NoLeaks {
protected:
  /// An iterator at 20.
  It makeIterator() {
    It it = iteratorOver(numbers_);
    return it.next();
  }

  FakeSequence<int> numbers_{.values = {10, 20, 30, 40}, .cardinality = 4};
};

TEST_F(MovedIterator, clonesItsEngineOnceWhenItIsShared) {
  for (Operation const& operation : operations)
    for (bool const shared : {false, true}) {
      SCOPED_TRACE(operation.name);
      It it = makeIterator();
      It const other(shared ? it : makeIterator());
      numbers_.clones = 0;
      EXPECT_EQ(&operation.apply(it), &it);
      EXPECT_EQ(numbers_.clones, shared ? 1 : operation.clones);
      EXPECT_EQ(place(it), operation.place);
      EXPECT_EQ(place(other), "20");
    }
}

TEST_F(MovedIterator, staysInPlaceWhenTheCloneIsNull) {
  for (Operation const& operation : operations) {
    SCOPED_TRACE(operation.name);
    It it = makeIterator();
    It const other(it);
    numbers_.clonesToNull = true;
    EXPECT_EQ(nullPointeeOf([&] { operation.apply(it); }), "Qv::IteratorImp<int>*");
    EXPECT_EQ(place(it) + place(other), "2020");
  }
}

TEST_F(MovedIterator, sharesItsEngineForReading) {
  It const it = iteratorOver(numbers_);
  It assigned = makeIterator();
  assigned = it;
  EXPECT_EQ(it.item() + *it, 20);
  EXPECT_EQ(it.operator->(), numbers_.values.data());
  EXPECT_TRUE(assigned.atBegin());
  EXPECT_FALSE(assigned.atEnd());
  EXPECT_EQ(assigned.getCardinality(), 4);
  EXPECT_EQ(numbers_.clones, 0);
}

TEST_F(MovedIterator, throwsWhenItHasNoEngine) {
  It const null{RCPvtEngPtr<IteratorImp<int>>()};
  void (*const reads[])(It const&) = {
      [](It const& i) { i.item(); },    [](It const& i) { *i; },
      [](It const& i) { i.atBegin(); }, [](It const& i) { i.operator->(); },
      [](It const& i) { i.atEnd(); },   [](It const& i) { i.getCardinality(); }};
  for (auto const read : reads)
    EXPECT_EQ(nullPointeeOf([&] { read(null); }), "Qv::IteratorImp<int>*");
  It copy(null);
  for (Operation const& operation : operations)
    EXPECT_EQ(nullPointeeOf([&] { operation.apply(copy); }), "Qv::IteratorImp<int>*");
}

} // namespace
} // namespace Qv
