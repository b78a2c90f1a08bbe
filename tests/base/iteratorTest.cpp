#include "iterator.h"
#include "allocations.h"
#include "nullPointee.h"

#include <array>

namespace Qv {
namespace {

/// Four elements, and how the engines over them were cloned.
struct Numbers {
  std::array<int, 4> values{10, 20, 30, 40};
  int clones = 0;
  bool clonesToNull = false;
};

class NumbersEngine : public IteratorImp<int> {
public:
  NumbersEngine(Numbers& numbers, std::size_t position) : numbers_(numbers), position_(position) {}

  bool isEqual(IteratorImp<int> const& other) const override {
    return position_ == dynamic_cast<NumbersEngine const&>(other).position_;
  }
  int const& item() const override { return numbers_.values.at(position_); }
  int& item() override { return numbers_.values.at(position_); }
  void first() override { position_ = 0; }
  void last() override { position_ = 3; }
  void end() override { position_ = 4; }
  bool atEnd() const override { return position_ == 4; }
  bool atBegin() const override { return position_ == 0; }
  void next() override { ++position_; }
  void previous() override { --position_; }
  int getCardinality() const override { return 4; }
  NumbersEngine* clone() const override {
    if (numbers_.clonesToNull)
      return nullptr;
    auto* const engine = new NumbersEngine(numbers_, position_);
    ++numbers_.clones;
    return engine;
  }

private:
  Numbers& numbers_;
  std::size_t position_;
};

using It = Iterator<int>;
constexpr int AtEnd = -1;

It iteratorAt(Numbers& numbers, std::size_t position) {
  return It(RCPvtEngPtr<IteratorImp<int>>(new NumbersEngine(numbers, position)));
}
It iteratorWithoutEngine() { return It(RCPvtEngPtr<IteratorImp<int>>()); }
int valueAt(It const& it) { return it.atEnd() ? AtEnd : it.item(); }

/// An operation that needs an engine of its own.
struct Operation {
  char const* name;
  It& (*apply)(It&);
  /// Where it leads from 20.
  int value;
  /// How many clones it costs when the engine is not shared.
  int clones;
};
void PrintTo(Operation const& operation, std::ostream* os) { *os << operation.name; }

template <class Move> It& postfix(It& it, Move move) {
  It const old = move(it);
  EXPECT_EQ(valueAt(old), 20);
  return it;
}
It& same(It& it, int& item) {
  item += 0;
  return it;
}

Operation const operations[] = {
    {"first", [](It& it) -> It& { return it.first(); }, 10, 0},
    {"last", [](It& it) -> It& { return it.last(); }, 40, 0},
    {"end", [](It& it) -> It& { return it.end(); }, AtEnd, 0},
    {"next", [](It& it) -> It& { return it.next(); }, 30, 0},
    {"previous", [](It& it) -> It& { return it.previous(); }, 10, 0},
    {"preIncrement", [](It& it) -> It& { return ++it; }, 30, 0},
    {"preDecrement", [](It& it) -> It& { return --it; }, 10, 0},
    {"postIncrement", [](It& it) -> It& { return postfix(it, [](It& i) { return i++; }); }, 30, 1},
    {"postDecrement", [](It& it) -> It& { return postfix(it, [](It& i) { return i--; }); }, 10, 1},
    {"item", [](It& it) -> It& { return same(it, it.item()); }, 20, 0},
    {"star", [](It& it) -> It& { return same(it, *it); }, 20, 0},
    {"arrow", [](It& it) -> It& { return same(it, *it.operator->()); }, 20, 0},
};

class IteratorTest : public NoLeaks {
protected:
  Numbers numbers;
};
class IteratorOperationTest : public IteratorTest, public testing::WithParamInterface<Operation> {};
INSTANTIATE_TEST_SUITE_P(All, IteratorOperationTest, testing::ValuesIn(operations),
                         [](auto const& info) { return info.param.name; });

TEST_P(IteratorOperationTest, clonesASharedEngineOnce) {
  It it = iteratorAt(numbers, 1);
  It const other(it);
  EXPECT_EQ(&GetParam().apply(it), &it);
  EXPECT_EQ(numbers.clones, 1);
  EXPECT_EQ(valueAt(it), GetParam().value);
  EXPECT_EQ(valueAt(other), 20);
}

TEST_P(IteratorOperationTest, usesItsOwnEngineInPlace) {
  It it = iteratorAt(numbers, 1);
  EXPECT_EQ(&GetParam().apply(it), &it);
  EXPECT_EQ(numbers.clones, GetParam().clones);
  EXPECT_EQ(valueAt(it), GetParam().value);
}

TEST_P(IteratorOperationTest, throwsWithoutEngine) {
  It const null = iteratorWithoutEngine();
  It copy(null);
  EXPECT_EQ(nullPointeeOf([&] { GetParam().apply(copy); }), "Qv::IteratorImp<int>*");
}

TEST_P(IteratorOperationTest, keepsTheEngineThatClonesToNull) {
  numbers.clonesToNull = true;
  It it = iteratorAt(numbers, 1);
  It const other(it);
  EXPECT_EQ(nullPointeeOf([&] { GetParam().apply(it); }), "Qv::IteratorImp<int>*");
  EXPECT_EQ(valueAt(it), 20);
  EXPECT_EQ(valueAt(other), 20);
}

TEST_P(IteratorOperationTest, losesNothingWhenTheCloneCannotBeAllocated) {
  EXPECT_EQ(forEachFailingAllocation([&] {
              It it = iteratorAt(numbers, 1);
              It const other(it);
              try {
                GetParam().apply(it);
              } catch (std::bad_alloc const&) {
                EXPECT_EQ(valueAt(it), 20);
                throw;
              }
            }),
            2);
}

TEST_F(IteratorTest, readingSharesTheEngine) {
  It const it = iteratorAt(numbers, 0);
  It assigned = iteratorAt(numbers, 2);
  assigned = it;
  EXPECT_EQ(it.item(), 10);
  EXPECT_EQ(*it, 10);
  EXPECT_EQ(it.operator->(), numbers.values.data());
  EXPECT_TRUE(assigned.atBegin());
  EXPECT_FALSE(assigned.atEnd());
  EXPECT_EQ(assigned.getCardinality(), 4);
  EXPECT_EQ(numbers.clones, 0);
}

TEST_F(IteratorTest, readingThrowsWithoutEngine) {
  It const it = iteratorWithoutEngine();
  void (*const reads[])(It const&) = {
      [](It const& i) { i.item(); },    [](It const& i) { *i; },
      [](It const& i) { i.atBegin(); }, [](It const& i) { i.operator->(); },
      [](It const& i) { i.atEnd(); },   [](It const& i) { i.getCardinality(); },
  };
  for (auto const read : reads)
    EXPECT_EQ(nullPointeeOf([&] { read(it); }), "Qv::IteratorImp<int>*");
}

} // namespace
} // namespace Qv
