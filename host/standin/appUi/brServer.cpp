#include "brServer.h"

#include "hostOpaque.h"
#include "hostPath.h"

namespace Qv {

namespace {

constexpr char Separator[] = {HostPath::Separator, 0};

} // namespace

BrServer::BrServer() : attributes_(new BrAttribList) {}

BrServer::~BrServer() = default;

RCShdPtr<BrNode> BrServer::getNodeFromBrowsable(RCShdPtr<BrBrowsable> const& browsable,
                                                LiString& /*message*/) const {
  return BrNode::create(browsable);
}

LiString BrServer::getRootPath(LiString const& /*path*/) const { return ""; }

RCShdPtr<BrNode> BrServer::getRootNode() {
  LiString message;
  return getNode(getDefaultPath(), message);
}

LiString BrServer::getDefaultPath() const { return getRootPath(""); }

LiString BrServer::resolvePath(LiString const& path) const { return path; }

char const* BrServer::getPathSeparator() const { return Separator; }

std::string BrServer::getPathInvalidChars() const { return Separator; }

bool BrServer::isObservable() const { return false; }

LiString BrServer::getParentPath(LiString const& path) const {
  // A trailing separator adds no component.
  std::size_t const end =
      path.rfind(HostPath::Separator, path.find_last_not_of(HostPath::Separator));
  return end == std::string::npos ? LiString() : LiString(path.substr(0, end));
}

bool BrServer::supportsSequences() const { return false; }

bool BrServer::updateSequenceInfo(RCShdPtr<BrNode> const& /*parent*/,
                                  Vector<RCShdPtr<BrNode>> const& /*nodes*/,
                                  Vector<RCShdPtr<BrNode>>& /*sequences*/, bool /*flag*/) {
  return false;
}

BrServer::FilterOptions BrServer::getFilterOptions() const { return FilterOptions{}; }

std::string BrServer::getBrowserRole() const { return ""; }

void BrServer::expandSequences(RCShdPtr<BrNode> const& /*parent*/,
                               Vector<RCShdPtr<BrNode>> const& /*sequences*/,
                               Vector<RCShdPtr<BrNode>>& /*nodes*/) {}

RCShdPtr<BrAttribList> BrServer::getAttributesList() const { return attributes_; }

bool BrServer::isDetailBelow() const { return false; }

void BrServer::selected(RCShdPtr<RCBase<LkCounter<int>>> const& /*object*/) {}
void BrServer::unselected(RCShdPtr<RCBase<LkCounter<int>>> const& /*object*/) {}
void BrServer::nodeExpanded(RCShdPtr<BrNode> const& /*node*/) {}
void BrServer::parentNodeExpanded(RCShdPtr<BrNode> const& /*node*/) {}
void BrServer::nodeCollapsed(RCShdPtr<BrNode> const& /*node*/) {}
void BrServer::parentNodeCollapsed(RCShdPtr<BrNode> const& /*node*/) {}

RCShdPtr<CmCommandStack> BrServer::getCommandStack() const { return RCShdPtr<CmCommandStack>(); }

void BrServer::rescanPerformed() {}

bool BrServer::isChildrenScanForeground() const { return true; }

} // namespace Qv
