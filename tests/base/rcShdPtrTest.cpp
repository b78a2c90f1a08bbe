#include "rcShdPtr.h"
#include "allocations.h"

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

class RCShdPtrTest : public NoLeaks {
protected:
  template <class T> static std::string dumped(RCShdPtr<T> const& pointer) {
    std::ostringstream os;
    os << std::hex << std::showbase;
    pointer.dump(os);
    return os.str();
  }
  static std::string address(void const* pointer) {
    std::ostringstream os;
    os << pointer;
    return os.str();
  }
};

TEST_F(RCShdPtrTest, movingLeavesTheCountAndTheSourceNull) {
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

TEST_F(RCShdPtrTest, convertsToBaseAndToConst) {
  RCShdPtr<Circle> const circle(new Circle);
  RCShdPtr<Shape> const shape = circle;
  RCShdPtr<Shape const> const constant = shape;
  EXPECT_EQ(constant, circle);
  EXPECT_EQ(circle->getRefCount(), 3);

  static_assert(!std::is_convertible_v<RCShdPtr<Shape>, RCShdPtr<Circle>>);
  static_assert(!std::is_convertible_v<RCShdPtr<Shape const>, RCShdPtr<Shape>>);
}

TEST_F(RCShdPtrTest, dynamicConversions) {
  RCShdPtr<Shape const> const shape(new Circle);

  RCShdPtr<Circle const> const tested = shape.dynamicCast<Circle const>();
  RCShdPtr<Circle const> const checked = shape.checkedCast<Circle const>();
  EXPECT_EQ(tested, shape);
  EXPECT_EQ(checked, shape);
  EXPECT_EQ(shape->getRefCount(), 3);

  EXPECT_FALSE(RCShdPtr<Shape>().dynamicCast<Circle>());
  EXPECT_FALSE(RCShdPtr<Shape>().checkedCast<Circle>());

  EXPECT_FALSE(shape.dynamicCast<Square const>());
  try {
    shape.checkedCast<Square const>();
    ADD_FAILURE() << "a circle was taken for a square";
  } catch (ExCastFailed const& ex) {
    EXPECT_EQ(ex.getFrom(), "Qv::(anonymous namespace)::Circle");
    EXPECT_EQ(ex.getTo(), "Qv::(anonymous namespace)::Square");
  }
  EXPECT_EQ(shape->getRefCount(), 3);
}

TEST_F(RCShdPtrTest, dumpShowsTypesCountAndAddresses) {
  std::vector<RCShdPtr<Shape const>> const pointers(17, RCShdPtr<Shape const>(new Circle));
  std::string const where = address(pointers[0].get());
  EXPECT_EQ(dumped(pointers[0]), "Pointee type = Qv::(anonymous namespace)::Circle, "
                                 "T type = Qv::(anonymous namespace)::Shape, ref: 17, pointer:" +
                                     where + ", RCBase pointer: " + where);
  EXPECT_EQ(dumped(RCShdPtr<Shape const>()),
            "Pointee type = null, T type = Qv::(anonymous namespace)::Shape, ref: 0, pointer:" +
                address(nullptr) + ", RCBase pointer: " + address(nullptr));
}

} // namespace
} // namespace Qv
