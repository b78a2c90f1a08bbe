#pragma once

#include "liString.h"

namespace Qv {

/// Names of the schemes that plug-ins add to the asset browser.
class QV_EXPORT PiBrowserSchemes {
public:
  static LiString const PluginToolScheme;
  static LiString const PluginViewScheme;
};

} // namespace Qv
