#include "moduleTest.h"

#include "brDndRegistry.h"
#include "hostActRegistry.h"
#include "hostBuildInfoRegistry.h"
#include "hostError.h"

namespace Qv {

namespace {

class Package : public ModuleTest {};

TEST_F(Package, keepsWhatItRegisteredBeforeAFailure) {
  RCShdPtr<PbrToolBrowsable> const toolType = PbrToolBrowsable::createBrowsableType();
  RCShdPtr<PbrViewBrowsable> const viewType = PbrViewBrowsable::createBrowsableType();
  // Ten packages are told to start before.
  for (auto const& [failing, operation] :
       {std::pair{13U, "UiResTable::load"}, {14U, "BrRegistry::registerView"}}) {
    journal_.start();
    journal_.failAt(failing);
    EXPECT_THROW(initializePackage(), HostError);
    EXPECT_EQ(journal_.getEntries().back().operation, operation);
    EXPECT_EQ(HostBuildInfoRegistry::getInstance().getInfos().size(), 1U);
    EXPECT_TRUE(BrDndRegistry::getInstance().findHandler(*toolType));
    EXPECT_TRUE(BrDndRegistry::getInstance().findHandler(*viewType));
    EXPECT_TRUE(HostBrRegistry::getInstance().getServers().empty());
    EXPECT_FALSE(HostBrRegistry::getInstance().getIcon("Tool"));
    EXPECT_TRUE(HostActRegistry::getInstance().getEntries().empty());
    EXPECT_THROW(initializePackage(), HostError) << "it has failed before";
    HostPackageManager::getInstance().uninitializeAll();
  }
  journal_.start();
}

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
