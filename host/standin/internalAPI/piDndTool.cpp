#include "piDndTool.h"

namespace Qv {

namespace {

class HostDndTool final : public PiDndTool {
public:
  explicit HostDndTool(RCShdPtr<PiTool const> const& tool) : tool_(tool) {}

  std::string getToolName() const override { return tool_->getName(); }

private:
  RCShdPtr<PiTool const> tool_;
};

} // namespace

PiNodeDndInterface::~PiNodeDndInterface() = default;

PiDndTool::~PiDndTool() = default;

RCShdPtr<PiDndTool const> PiDndTool::create(RCShdPtr<PiTool const> const& tool) {
  return RCShdPtr<PiDndTool const>(tool ? new HostDndTool(tool) : nullptr);
}

} // namespace Qv
