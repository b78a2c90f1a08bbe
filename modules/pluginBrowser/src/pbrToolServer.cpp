#include "pbrToolServer.h"

#include "pbrAttribList.h"
#include "pbrToolBrowsable.h"
#include "piBrowserSchemes.h"

namespace Qv {

PbrToolServer::PbrToolServer() { initializeAttribList(BrServer::getAttributesList(), "Tool"); }

PbrToolServer::~PbrToolServer() = default;

BrServer* PbrToolServer::clone() const { return new PbrToolServer; }

RCShdPtr<BrNode> PbrToolServer::getNode(LiString const& path, LiString& /*message*/) {
  return BrNode::create(PbrToolBrowsable::create(this, path));
}

LiString PbrToolServer::getSchemeName() const { return PiBrowserSchemes::PluginToolScheme; }

bool PbrToolServer::isObservable() const { return true; }

} // namespace Qv
