#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::resmgt>::InInit() : InPackageInit("resmgt") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
}

template class InInit<QvInit::resmgt>;

namespace {
InInit<QvInit::resmgt> package;
}

} // namespace Qv
