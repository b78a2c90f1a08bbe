#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::internalAPI>::InInit() : InPackageInit("internalAPI") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
  addDependency(InInit<QvInit::resmgt>::getType());
}

template class InInit<QvInit::internalAPI>;

namespace {
InInit<QvInit::internalAPI> package;
}

} // namespace Qv
