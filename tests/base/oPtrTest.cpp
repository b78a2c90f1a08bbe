#include "oPtr.h"
#include "noLeaks.h"
#include "thrown.h"

namespace Qv {
namespace {

struct Owned {
  static inline int living = 0;

  Owned() { ++living; }
  virtual ~Owned() { --living; }
};
struct Special : Owned {
  std::string text = std::string(100, 'x');
};

class SoleOwner : public NoLeaks {};

TEST_F(SoleOwner, transfersItsObjectByValue) {
  auto const consume = [](OPtr<Owned> owner) { return owner.get(); };
  auto const make = [](Special* object) -> OPtrRet<Special> { return OPtrRet<Special>(object); };
  auto* const object = new Special;
  OPtr<Special> sender = make(object);
  EXPECT_EQ(sender.get(), object);
  EXPECT_EQ(consume(std::move(sender)), object) << "as an object of the base class";
  EXPECT_FALSE(sender);
  EXPECT_EQ(Owned::living, 0);
  static_assert(!std::is_copy_constructible_v<OPtr<Owned>>);
}

TEST_F(SoleOwner, deletesItsOldObjectWhenAssigned) {
  OPtr<Owned> owner(new Owned);
  OPtr<Owned> other(new Owned);
  Owned const* const object = other.get();
  owner = std::move(other);
  EXPECT_EQ(owner.get(), object);
  EXPECT_FALSE(other);
  EXPECT_EQ(Owned::living, 1);

  auto& self = owner;
  owner = std::move(self);
  EXPECT_EQ(owner.get(), object);
}

TEST_F(SoleOwner, namesItsTypeWhenItIsNull) {
  OPtr<Special> const null;
  EXPECT_EQ(nullPointeeOf([&] { *null; }), "Qv::(anonymous namespace)::Special*");
  EXPECT_EQ(nullPointeeOf([&] { null->text.clear(); }), "Qv::(anonymous namespace)::Special*");
}

} // namespace
} // namespace Qv
