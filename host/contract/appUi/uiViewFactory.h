#pragma once

#include "iterator.h"
#include "liString.h"

namespace Qv {

/// The application's views.
class QV_EXPORT UiViewFactory {
public:
  /// The names of all views, in the host's order.
  static Iterator<LiString> getViews();
  /// The label shown to users; any name is allowed.
  static LiString getViewLabel(LiString const& name);
};

} // namespace Qv
