#include "hostDndTool.h"

namespace Qv {

PiNodeDndInterface::~PiNodeDndInterface() = default;

PiDndTool::~PiDndTool() = default;

RCShdPtr<PiDndTool const> PiDndTool::create(RCShdPtr<PiTool const> const& tool) {
  return RCShdPtr<PiDndTool const>(tool ? new HostDndTool(tool) : nullptr);
}

HostDndTool::HostDndTool(RCShdPtr<PiTool const> const& tool) : tool_(tool) {}

HostDndTool::~HostDndTool() = default;

} // namespace Qv
