#pragma once

#include "rcExUtil.h"

#include <stdexcept>

namespace Qv {

/// The `Ex` that `f` throws; what was passed to its constructor may be destroyed by then.
template <class Ex, class F> Ex thrownBy(F f) {
  try {
    f();
  } catch (Ex const& ex) {
    return ex;
  }
  throw std::logic_error("nothing was thrown");
}

/// The type that the ExNullPtr thrown by `f` names.
template <class F> std::string nullPointeeOf(F f) { return thrownBy<ExNullPtr>(f).getTypeName(); }

} // namespace Qv
