#include "hostBrRegistry.h"
#include "hostDndRegistry.h"
#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::appUi>::InInit() : InPackageInit("appUi") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
  addDependency(InInit<QvInit::resmgt>::getType());
  addDependency(InInit<QvInit::datamgt>::getType());
  addDependency(InInit<QvInit::internalAPI>::getType());
  addDependency(InInit<QvInit::framework>::getType());
  addDependency(InInit<QvInit::ui>::getType());
}

template <> void InInit<QvInit::appUi>::uninitialize() {
  HostDndRegistry::getInstance().clear();
  HostBrRegistry::getInstance().clear();
}

template class InInit<QvInit::appUi>;

namespace {
InInit<QvInit::appUi> package;
}

} // namespace Qv
