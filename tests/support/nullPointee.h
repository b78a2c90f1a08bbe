#pragma once

#include "rcExUtil.h"

namespace Qv {

/// The type that the ExNullPtr thrown by `f` names.
template <class F> std::string nullPointeeOf(F f) {
  try {
    f();
  } catch (ExNullPtr const& ex) {
    return ex.getTypeName();
  }
  return "nothing was thrown";
}

} // namespace Qv
