#include "pbrViewServer.h"

#include "pbrAttribList.h"
#include "pbrViewBrowsable.h"
#include "piBrowserSchemes.h"

namespace Qv {

PbrViewServer::PbrViewServer() { initializeAttribList(BrServer::getAttributesList()); }

PbrViewServer::~PbrViewServer() = default;

BrServer* PbrViewServer::clone() const { return new PbrViewServer; }

RCShdPtr<BrNode> PbrViewServer::getNode(LiString const& path, LiString& /*message*/) {
  return BrNode::create(PbrViewBrowsable::create(this, path));
}

LiString PbrViewServer::getSchemeName() const { return PiBrowserSchemes::PluginViewScheme; }

bool PbrViewServer::isObservable() const { return true; }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface passes it by value.
void PbrViewServer::initializeAttribList(RCShdPtr<BrAttribList> list) {
  appendColumns(list, "View");
}

} // namespace Qv
