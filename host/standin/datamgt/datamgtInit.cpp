#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::datamgt>::InInit() : InPackageInit("datamgt") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
  addDependency(InInit<QvInit::resmgt>::getType());
}

template class InInit<QvInit::datamgt>;

namespace {
InInit<QvInit::datamgt> package;
}

} // namespace Qv
