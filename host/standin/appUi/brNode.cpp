#include "brNode.h"

namespace Qv {

namespace {

class HostNode final : public BrNode {
public:
  explicit HostNode(RCShdPtr<BrBrowsable> const& browsable) : browsable_(browsable) {}

  RCShdPtr<BrBrowsable> const& getBrowsable() const override { return browsable_; }

private:
  RCShdPtr<BrBrowsable> browsable_;
};

} // namespace

BrNode::~BrNode() = default;

RCShdPtr<BrNode> BrNode::create(RCShdPtr<BrBrowsable> const& browsable) {
  return RCShdPtr<BrNode>(new HostNode(browsable));
}

} // namespace Qv
