#pragma once

#include "osFilePath.h"
#include "rcShdPtr.h"
#include "wsManagedImage.h"

namespace Qv {

/// Loads icons.
class QV_EXPORT UiIconRegistry {
public:
  static UiIconRegistry& getInstance();

  /// The image in `file`, a bare name; null if there is none.
  RCShdPtr<WsManagedImage> loadImage(OsFilePath const& file);
};

} // namespace Qv
