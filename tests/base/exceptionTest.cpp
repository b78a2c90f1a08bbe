#include "assertions.h"
#include "iteratorEx.h"
#include "thrown.h"

#include <gmock/gmock.h>

#include <type_traits>

namespace Qv {
namespace {

using testing::AllOf;
using testing::HasSubstr;

/// A text that is destroyed before the exception constructed from it is caught.
std::string temporary(char const* text) { return std::string(text) + std::string(40, '.'); }

TEST(Exceptions, keepTheirArguments) {
  static_assert(std::is_base_of_v<std::exception, ExBase>);
  auto const null =
      thrownBy<ExNullPtr>([] { RCExUtil::throwExNullPtr(temporary("Pointer").c_str()); });
  EXPECT_THAT(null.what(), HasSubstr(temporary("Pointer")));

  auto const cast = thrownBy<ExCastFailed>(
      [] { RCExUtil::throwExCastFailed(temporary("From").c_str(), temporary("To").c_str()); });
  EXPECT_THAT(cast.what(), AllOf(HasSubstr(temporary("From")), HasSubstr(temporary("To"))));

  auto const range =
      thrownBy<IteratorEx>([] { throw IteratorEx::ExOutOfRange(temporary("file").c_str(), 4711); });
  EXPECT_THAT(range.what(), AllOf(HasSubstr(temporary("file")), HasSubstr("4711")));

  auto const aborted = thrownBy<ExProgramAborted>([] {
    Assertions::throwProgramAborted(temporary("file").c_str(), 171, temporary("broken").c_str());
  });
  EXPECT_EQ(aborted.getMessage(), temporary("broken"));
  EXPECT_THAT(aborted.what(), AllOf(HasSubstr(temporary("file")), HasSubstr("171"),
                                    HasSubstr(temporary("broken"))));
}

} // namespace
} // namespace Qv
