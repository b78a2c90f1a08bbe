#pragma once

#include "drCarrier.h"
#include "hostBrRegistry.h"
#include "hostDndRegistry.h"
#include "hostPackageManager.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"

#include <cstdlib>

namespace Qv {

/// Has the linked module register its schemes.
// NOLINTNEXTLINE(misc-definitions-in-headers): a fuzzer is one source file, which includes this.
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  HostResources::getInstance().setDirectory(RESOURCE_DIR);
  HostPackageManager& manager = HostPackageManager::getInstance();
  for (InPackageInit* const package : manager.getPackages())
    manager.initialize(*package);
  return 0;
}

/// Aborts unless the property holds, so that the fuzzer saves the input.
inline void require(bool property) {
  if (!property)
    std::abort();
}

/// Browses an item and everything below it. @returns the number of its children.
inline int browse(BrServer& server, RCShdPtr<BrBrowsable> const& item) {
  LiString message;
  require(server.getNode(item->getPath(), message)->getBrowsable()->isEqualTo(*item));
  item->getTooltip(0);
  item->getImage(int(BrBrowsable::THUMBNAIL), {128, 128});
  RCShdPtr<DrCarrier> const carrier(new DrCarrier(SnSelection::create()));
  HostDndRegistry::getInstance().findHandler(*item)->populateSelection(item, carrier);
  HostBrRegistry::getInstance().createDetailView(item);

  RCShdPtr<BrChildrenQuery> const query = item->getChildren(BrBrowsable::FindFilter(0));
  Iterator<RCShdPtr<BrBrowsable>> children = query->getNextChildSequence();
  int const count = children.getCardinality();
  require(count == 0 || item->isAContainer());
  for (; !children.atEnd(); children.next())
    browse(server, children.item());
  return count;
}

/// Browses both schemes, which must have that many categories and views, and empties them.
inline void browseAll(int categories, int views) {
  for (auto const& [scheme, count] : {std::pair("tools", categories), std::pair("views", views)}) {
    BrServer& server = HostBrRegistry::getInstance().getServer(scheme);
    LiString message;
    require(browse(server, server.getNode("", message)->getBrowsable()) == count);
  }
  HostToolRegistry::getInstance().clear();
  HostViewFactory::getInstance().clear();
  HostTtServer::getInstance().clear();
}

} // namespace Qv
