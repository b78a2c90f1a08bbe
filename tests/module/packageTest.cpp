#include "moduleTest.h"

#include "hostActRegistry.h"
#include "hostDndRegistry.h"

namespace Qv {

namespace {

class Package : public ModuleTest {
protected:
  Package() { initializePackage(); }

  HostBrRegistry& browser_ = HostBrRegistry::getInstance();
  HostDndRegistry& handlers_ = HostDndRegistry::getInstance();
};

TEST_F(Package, goesOnWhenAHandlerIsRefused) {
  RCShdPtr<BrDndHandler> const first = handlers_.getEntries().at(0).handler;
  browser_.clear();
  HostActRegistry::getInstance().clear();
  HostPackageManager::getInstance()
      .find(typeid(InInit<QvInit::pluginBrowserQvmodule>))
      ->initialize();
  EXPECT_EQ(browser_.getServers().size(), 2U);
  EXPECT_EQ(handlers_.getEntries().at(0).handler, first);
}

TEST_F(Package, letsGoOfWhatItRegistered) {
  ASSERT_EQ(handlers_.getEntries().size(), 2U);
  for (auto const& [type, handler] : handlers_.getEntries()) {
    EXPECT_EQ(type->getRefCount(), 1);
    EXPECT_EQ(handler->getRefCount(), 1);
  }
  ASSERT_EQ(browser_.getIcons().size(), 8U);
  for (auto const& [key, image] : browser_.getIcons())
    EXPECT_EQ(image->getRefCount(), 1) << key.first;
}

} // namespace

} // namespace Qv
