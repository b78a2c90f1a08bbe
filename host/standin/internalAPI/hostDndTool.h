#pragma once

#include "piDndTool.h"

namespace Qv {

/// What a drop target receives for a tool.
class QV_EXPORT HostDndTool final : public PiDndTool {
public:
  explicit HostDndTool(RCShdPtr<PiTool const> const& tool);

  RCShdPtr<PiTool const> const& getTool() const { return tool_; }

private:
  ~HostDndTool() override;

  RCShdPtr<PiTool const> tool_;
};

} // namespace Qv
