#pragma once

#include "osFilePath.h"
#include "rcShdPtr.h"
#include "wsManagedImage.h"

namespace Qv {

/// Loads icons.
class QV_EXPORT UiIconRegistry {
public:
  static UiIconRegistry& getInstance();

  /// The image in the file of that bare name; null when there is no such image.
  RCShdPtr<WsManagedImage> loadImage(OsFilePath const& file);
};

} // namespace Qv
