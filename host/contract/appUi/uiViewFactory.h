#pragma once

#include "iterator.h"
#include "liString.h"

namespace Qv {

/// Knows the views of the application.
class QV_EXPORT UiViewFactory {
public:
  /// The names of all views, in the host's order.
  static Iterator<LiString> getViews();
  /// What a person reads for the view of that name; the name itself when there is no such view.
  static LiString getViewLabel(LiString const& name);
};

} // namespace Qv
