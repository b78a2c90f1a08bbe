#pragma once

#include "qvExport.h"

namespace Qv {

/// A pair of coordinates or sizes.
template <class T> struct QV_EXPORT GeVector2 {
  T x{};
  T y{};
};

} // namespace Qv
