#include "hostDndRegistry.h"

#include "hostJournal.h"
#include "typeName.h"

#include <typeinfo>

namespace Qv {

BrDndRegistry& BrDndRegistry::getInstance() {
  static BrDndRegistry registry;
  return registry;
}

bool BrDndRegistry::addHandler(RCShdPtr<BrBrowsable> const& type,
                               RCShdPtr<BrDndHandler> const& handler) {
  return HostDndRegistry::getInstance().add(type, handler);
}

HostDndRegistry& HostDndRegistry::getInstance() {
  static HostDndRegistry registry;
  return registry;
}

bool HostDndRegistry::add(RCShdPtr<BrBrowsable> const& type,
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

RCShdPtr<BrDndHandler> HostDndRegistry::findHandler(BrBrowsable const& item) const {
  for (Entry const& entry : entries_) {
    BrBrowsable const& prototype = *entry.type;
    if (typeid(prototype) == typeid(item))
      return entry.handler;
  }
  return RCShdPtr<BrDndHandler>();
}

} // namespace Qv
