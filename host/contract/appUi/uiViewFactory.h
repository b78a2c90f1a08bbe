#pragma once

#include "iterator.h"
#include "liString.h"

namespace Qv {

/// The views of the application.
class QV_EXPORT UiViewFactory {
public:
  /// The names of all views, in the host's order.
  static Iterator<LiString> getViews();
  /// The label shown to users; the name itself when there is no such view.
  static LiString getViewLabel(LiString const& name);
};

} // namespace Qv
