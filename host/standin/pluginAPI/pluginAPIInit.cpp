#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::pluginAPI>::InInit() : InPackageInit("pluginAPI") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
  addDependency(InInit<QvInit::internalAPI>::getType());
}

template class InInit<QvInit::pluginAPI>;

namespace {
InInit<QvInit::pluginAPI> package;
}

} // namespace Qv
