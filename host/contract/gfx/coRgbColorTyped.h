#pragma once

#include "qvExport.h"

namespace Qv {

/// A colour; float components range from 0 to 1.
template <class T> struct QV_EXPORT CoRgbColorTyped {
  T red{};
  T green{};
  T blue{};

  /// @name Stand-in only
  /// @{
  bool operator==(CoRgbColorTyped const&) const = default;
  /// @}
};

} // namespace Qv
