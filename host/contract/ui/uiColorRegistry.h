#pragma once

#include "coRgbColorTyped.h"
#include "liString.h"

namespace Qv {

/// The colours of the application, by name.
class QV_EXPORT UiColorRegistry {
public:
  /// The background of fields that cannot be edited.
  static LiString const NonEditBackground;

  static UiColorRegistry& getInstance();

  /// The colour of that name.
  CoRgbColorTyped<float> getColor(LiString const& name) const;
};

} // namespace Qv
