#include "failures.h"

#include <new>

namespace Qv {

std::string describeException() {
  try {
    throw;
  } catch (std::bad_alloc const&) {
    return "out of memory";
  } catch (std::exception const& error) {
    return error.what();
  } catch (...) {
    return "the module threw what is not an exception";
  }
}

void Failures::report() noexcept {
  try {
    report_(describeException());
  } catch (...) { // NOLINT(bugprone-empty-catch): there is nobody left to tell.
  }
}

} // namespace Qv
