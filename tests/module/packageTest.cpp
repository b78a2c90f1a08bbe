#include "moduleTest.h"

#include "brDndRegistry.h"
#include "hostActRegistry.h"

namespace Qv {

namespace {

class Package : public ModuleTest {};

TEST_F(Package, goesOnWhenAHandlerIsRefused) {
  initializePackage();
  BrDndHandler* const first =
      BrDndRegistry::getInstance().findHandler(*PbrToolBrowsable::createBrowsableType()).get();
  HostBrRegistry::getInstance().clear();
  HostActRegistry::getInstance().clear();
  HostPackageManager::getInstance()
      .find(typeid(InInit<QvInit::pluginBrowserQvmodule>))
      ->initialize();
  EXPECT_EQ(HostBrRegistry::getInstance().getServers().size(), 2U);
  EXPECT_EQ(
      BrDndRegistry::getInstance().findHandler(*PbrToolBrowsable::createBrowsableType()).get(),
      first);
}

} // namespace

} // namespace Qv
