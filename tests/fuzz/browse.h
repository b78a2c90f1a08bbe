#pragma once

#include "drCarrier.h"
#include "hostBrRegistry.h"
#include "hostDndRegistry.h"
#include "hostPackageManager.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "items.h"

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
inline int browse(RCShdPtr<BrBrowsable> const& item) {
  require(findItem(item->getSchemeName(), item->getPath())->isEqualTo(*item));
  item->getTooltip(0);
  item->getImage(int(BrBrowsable::THUMBNAIL), {128, 128});
  RCShdPtr<DrCarrier> const carrier(new DrCarrier(SnSelection::create()));
  HostDndRegistry::getInstance().findHandler(*item)->populateSelection(item, carrier);
  HostBrRegistry::getInstance().createDetailView(item);

  Items const children = getChildren(*item);
  require(children.empty() || item->isAContainer());
  for (RCShdPtr<BrBrowsable> const& child : children)
    browse(child);
  return int(children.size());
}

/// Browses both schemes, which must have that many categories and views, and empties them.
inline void browseAll(int categories, int views) {
  require(browse(findItem("tools", "")) == categories);
  require(browse(findItem("views", "")) == views);
  HostToolRegistry::getInstance().clear();
  HostViewFactory::getInstance().clear();
  HostTtServer::getInstance().clear();
}

} // namespace Qv
