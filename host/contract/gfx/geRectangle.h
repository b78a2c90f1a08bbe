#pragma once

#include "geVector2.h"

namespace Qv {

/// A rectangle: minimum corner and size.
template <class T> struct QV_EXPORT GeRectangle {
  GeVector2<T> origin;
  GeVector2<T> size;
};

} // namespace Qv
