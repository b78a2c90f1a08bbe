#pragma once

#include "piTool.h"
#include "rcShdPtr.h"

namespace Qv {

/// A plug-in node that can be dragged.
class QV_EXPORT PiNodeDndInterface : public RCBase<LkCounter<int>> {
protected:
  ~PiNodeDndInterface() override;
};

/// The draggable form of a plug-in tool.
class QV_EXPORT PiDndTool : public PiNodeDndInterface {
protected:
  ~PiDndTool() override;

public:
  /// Null if `tool` is null or cannot be dragged.
  static RCShdPtr<PiDndTool const> create(RCShdPtr<PiTool const> const& tool);
};

} // namespace Qv
