#pragma once

#include "hostError.h"
#include "thrown.h"

namespace Qv {

/// The message of the HostError that `f` throws.
template <class F> std::string refusalOf(F f) { return thrownBy<HostError>(f).what(); }

} // namespace Qv
