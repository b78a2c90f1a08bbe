#include "brDndRegistry.h"

#include "hostJournal.h"
#include "typeName.h"

#include <typeinfo>

namespace Qv {

BrDndHandler::BrDndHandler() = default;

BrDndHandler::~BrDndHandler() = default;

void BrDndHandler::createUrl(RCShdPtr<BrBrowsable> const& /*item*/,
                             RCShdPtr<DrCarrier> const& /*carrier*/) {}

bool BrDndHandler::willCopy(RCShdPtr<BrBrowsable> const& item) {
  return willPopulateSelection(item);
}

bool BrDndHandler::dragAndDropComplete(RCShdPtr<BrBrowsable> const& /*item*/,
                                       RCShdPtr<DrCarrier> const& /*carrier*/) {
  return true;
}

BrDndRegistry& BrDndRegistry::getInstance() {
  static BrDndRegistry registry;
  return registry;
}

bool BrDndRegistry::addHandler(RCShdPtr<BrBrowsable> const& type,
                               RCShdPtr<BrDndHandler> const& handler) {
  BrBrowsable const& prototype = *type;
  BrDndHandler const& added = *handler;
  HostJournal::getInstance().record("BrDndRegistry::addHandler", typeName(typeid(prototype)),
                                    typeName(typeid(added)));
  if (findHandler(prototype))
    return false;
  entries_.push_back({type, handler});
  return true;
}

RCShdPtr<BrDndHandler> BrDndRegistry::findHandler(BrBrowsable const& item) const {
  for (Entry const& entry : entries_) {
    BrBrowsable const& prototype = *entry.type;
    if (typeid(prototype) == typeid(item))
      return entry.handler;
  }
  return RCShdPtr<BrDndHandler>();
}

} // namespace Qv
