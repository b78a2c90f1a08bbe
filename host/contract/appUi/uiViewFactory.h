#pragma once

#include "iterator.h"
#include "liString.h"

namespace Qv {

/// The views of the application.
class QV_EXPORT UiViewFactory {
public:
  /// The names of all views, in the host's order.
  static Iterator<LiString> getViews();
  /// The label shown to users, also for a name that is not a view's.
  static LiString getViewLabel(LiString const& name);
};

} // namespace Qv
