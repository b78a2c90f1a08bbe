#include "inInit.imp.h"

namespace Qv {

template <> InInit<QvInit::gfx>::InInit() : InPackageInit("gfx") {
  registerPackage();
  addDependency(InInit<QvInit::base>::getType());
}

template class InInit<QvInit::gfx>;

namespace {
InInit<QvInit::gfx> package;
}

} // namespace Qv
