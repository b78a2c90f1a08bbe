#include "rcShdPtr.h"
#include "noLeaks.h"
#include "thrown.h"

#include <sstream>
#include <vector>

namespace Qv {
namespace {

class Shape : public RCBase<LkCounter<int>> {
protected:
  ~Shape() override = default;
};
class Circle : public Shape {};
class Square : public Shape {};

class SharedPointer : public NoLeaks {};

TEST_F(SharedPointer, keepsTheCountAndLeavesNullWhenMoved) {
  RCShdPtr<Shape> source(new Shape);
  RCShdPtr<Shape> target(std::move(source));
  EXPECT_FALSE(source);
  EXPECT_EQ(target->getRefCount(), 1);

  auto& self = target;
  target = std::move(self);
  EXPECT_EQ(target->getRefCount(), 1);

  source = target;
  target = std::move(source);
  EXPECT_FALSE(source);
  EXPECT_EQ(target->getRefCount(), 1);
}

TEST_F(SharedPointer, convertsToBaseAndToConst) {
  RCShdPtr<Circle> const circle(new Circle);
  RCShdPtr<Shape> const shape = circle;
  RCShdPtr<Shape const> const constant = shape;
  EXPECT_EQ(constant, circle);
  EXPECT_EQ(circle->getRefCount(), 3);

  RCShdPtr<Circle> sender = circle;
  RCShdPtr<Shape> const receiver = std::move(sender);
  EXPECT_FALSE(sender);
  EXPECT_EQ(receiver->getRefCount(), 4);

  static_assert(!std::is_convertible_v<RCShdPtr<Shape>, RCShdPtr<Circle>>);
  static_assert(!std::is_convertible_v<RCShdPtr<Shape const>, RCShdPtr<Shape>>);
}

TEST_F(SharedPointer, castsToADerivedClassOrNamesBothTypes) {
  RCShdPtr<Shape const> const shape(new Circle);

  RCShdPtr<Circle const> const tested = shape.dynamicCast<Circle const>();
  RCShdPtr<Circle const> const checked = shape.checkedCast<Circle const>();
  EXPECT_EQ(tested, shape);
  EXPECT_EQ(checked, shape);
  EXPECT_EQ(shape->getRefCount(), 3);

  EXPECT_FALSE(RCShdPtr<Shape>().dynamicCast<Circle>());
  EXPECT_FALSE(RCShdPtr<Shape>().checkedCast<Circle>());

  EXPECT_FALSE(shape.dynamicCast<Square const>());
  auto const ex = thrownBy<ExCastFailed>([&] { shape.checkedCast<Square const>(); });
  EXPECT_EQ(ex.getFrom(), "Qv::(anonymous namespace)::Circle");
  EXPECT_EQ(ex.getTo(), "Qv::(anonymous namespace)::Square");
  EXPECT_EQ(shape->getRefCount(), 3);
}

TEST_F(SharedPointer, dumpsTypesCountAndAddresses) {
  std::vector<RCShdPtr<Shape const>> const pointers(17, RCShdPtr<Shape const>(new Circle));
  std::ostringstream text;
  text << std::hex << std::showbase;
  pointers[0].dump(text);
  RCShdPtr<Shape const>().dump(text);
  void const* const address = pointers[0].get();
  void const* const null = nullptr;
  std::ostringstream expected;
  expected << "Pointee type = Qv::(anonymous namespace)::Circle, T type = Qv::(anonymous "
              "namespace)::Shape, ref: 17, pointer:"
           << address << ", RCBase pointer: " << address
           << "Pointee type = null, T type = Qv::(anonymous namespace)::Shape, ref: 0, pointer:"
           << null << ", RCBase pointer: " << null;
  EXPECT_EQ(text.str(), expected.str());
}

} // namespace
} // namespace Qv
