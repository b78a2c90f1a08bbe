#pragma once

#include "hostError.h"
#include "thrown.h"

namespace Qv {

/// The reason that the HostError thrown by `f` gives.
template <class F> std::string refusalOf(F f) { return thrownBy<HostError>(f).what(); }

} // namespace Qv
