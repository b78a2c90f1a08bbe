#pragma once

#include "hostError.h"

#include <string>

namespace Qv {

/// The reason that the HostError thrown by `f` gives.
template <class F> std::string refusalOf(F f) {
  try {
    f();
  } catch (HostError const& refusal) {
    return refusal.what();
  }
  return "nothing was refused";
}

} // namespace Qv
