#pragma once

#include "liString.h"

namespace Qv {

/// The names of the schemes that plug-ins add to the asset browser.
class QV_EXPORT PiBrowserSchemes {
public:
  /// The scheme of the plug-in tools.
  static LiString const PluginToolScheme;
  /// The scheme of the views.
  static LiString const PluginViewScheme;
};

} // namespace Qv
