#include "hostActRegistry.h"
#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::framework>::InInit() : InPackageInit("framework") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
  addDependency(InInit<QvInit::resmgt>::getType());
  addDependency(InInit<QvInit::internalAPI>::getType());
}

template <> void InInit<QvInit::framework>::uninitialize() {
  HostActRegistry::getInstance().clear();
}

template class InInit<QvInit::framework>;

namespace {
InInit<QvInit::framework> package;
}

} // namespace Qv
