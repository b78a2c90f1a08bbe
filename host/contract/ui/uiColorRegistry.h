#pragma once

#include "coRgbColorTyped.h"
#include "liString.h"

namespace Qv {

/// The application's colours, by name.
class QV_EXPORT UiColorRegistry {
public:
  /// Background of read-only fields.
  static LiString const NonEditBackground;

  static UiColorRegistry& getInstance();

  CoRgbColorTyped<float> getColor(LiString const& name) const;
};

} // namespace Qv
