#pragma once

#include "pbrInstances.h"

#include "piDndTool.h"
#include "snItemBasic.h"
#include "uiViewIdentifier.h"

namespace Qv {

/// What a dragged tool puts into a selection.
using DraggedToolItem = SnItemBasic<RCShdPtr<PiNodeDndInterface const>>;
/// What a dragged view puts into a selection.
using DraggedViewItem = SnItemBasic<UiViewIdentifier>;

extern template class SnItemBasic<RCShdPtr<PiNodeDndInterface const>>;
extern template class SnItemBasic<UiViewIdentifier>;

} // namespace Qv
