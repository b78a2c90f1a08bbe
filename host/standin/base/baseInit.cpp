#include "hostBuildInfoRegistry.h"
#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::base>::InInit() : InPackageInit("base") { registerPackage(); }

template <> void InInit<QvInit::base>::uninitialize() {
  HostBuildInfoRegistry::getInstance().clear();
}

template class InInit<QvInit::base>;

namespace {
InInit<QvInit::base> package;
}

} // namespace Qv
