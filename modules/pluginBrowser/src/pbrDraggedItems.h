#pragma once

#include "pbrInstances.h"

#include "piDndTool.h"
#include "snItemBasic.h"
#include "uiViewIdentifier.h"

namespace Qv {

/// The selection item of a dragged tool.
using DraggedToolItem = SnItemBasic<RCShdPtr<PiNodeDndInterface const>>;
/// The selection item of a dragged view.
using DraggedViewItem = SnItemBasic<UiViewIdentifier>;

extern template class SnItemBasic<RCShdPtr<PiNodeDndInterface const>>;
extern template class SnItemBasic<UiViewIdentifier>;

} // namespace Qv
