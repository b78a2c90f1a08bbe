#pragma once

#include "liString.h"
#include "piTool.h"
#include "prdPredicate.h"

namespace Qv {

extern template class QV_EXPORT PrdPredicate<RCShdPtr<PiTool const>>;

/// Predicates on tools.
class QV_EXPORT PiToolPredicates {
public:
  /// The tool belongs to `category`.
  static PrdPredicate<RCShdPtr<PiTool const>> isCategory(LiString const& category);
  /// The tool is internal to the host.
  static PrdPredicate<RCShdPtr<PiTool const>> isInternal();
  static PrdPredicate<RCShdPtr<PiTool const>> isActive();
};

} // namespace Qv
