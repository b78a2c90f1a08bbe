#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::ui>::InInit() : InPackageInit("ui") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
  addDependency(InInit<QvInit::resmgt>::getType());
  addDependency(InInit<QvInit::gfx>::getType());
}

template class InInit<QvInit::ui>;

namespace {
InInit<QvInit::ui> package;
}

} // namespace Qv
