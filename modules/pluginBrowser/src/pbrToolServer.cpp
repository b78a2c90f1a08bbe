#include "pbrToolServer.h"

#include "pbrAttribList.h"
#include "pbrToolBrowsable.h"
#include "piBrowserSchemes.h"

namespace Qv {

PbrToolServer::PbrToolServer() { initializeAttribList(BrServer::getAttributesList()); }

PbrToolServer::~PbrToolServer() = default;

BrServer* PbrToolServer::clone() const { return new PbrToolServer; }

RCShdPtr<BrNode> PbrToolServer::getNode(LiString const& path, LiString& /*message*/) {
  return BrNode::create(PbrToolBrowsable::create(this, path));
}

LiString PbrToolServer::getSchemeName() const { return PiBrowserSchemes::PluginToolScheme; }

bool PbrToolServer::isObservable() const { return true; }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface passes it by value.
void PbrToolServer::initializeAttribList(RCShdPtr<BrAttribList> list) {
  appendColumns(list, "Tool");
}

} // namespace Qv
