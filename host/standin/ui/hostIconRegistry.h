#pragma once

#include "uiIconRegistry.h"

namespace Qv {

/// Loads icons from the resource directory.
class QV_EXPORT HostIconRegistry final : public UiIconRegistry {
public:
  static HostIconRegistry& getInstance();

  RCShdPtr<WsManagedImage> loadImage(OsFilePath const& file) override;
};

} // namespace Qv
