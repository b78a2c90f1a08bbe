#pragma once

#include "pbrInstances.h"

#include "allocations.h"
#include "assertions.h"
#include "hostBrRegistry.h"
#include "hostImage.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "nullPointee.h"
#include "pbrToolBrowsable.h"
#include "pbrToolServer.h"
#include "pbrViewBrowsable.h"
#include "pbrViewServer.h"
#include "pluginBrowserQvmoduleInit.h"

#include <gmock/gmock.h>

namespace Qv {

/// Starts and ends with empty registries and a journal that is not kept, and loses no allocation.
class ModuleTest : public NoLeaks {
protected:
  /// Fills every registry once: what is cleared keeps the storage of its elements.
  static void SetUpTestSuite() {
    HostResources::getInstance().setDirectory(RESOURCE_DIR);
    tools_.addCategory("x");
    tools_.addTool({.name = "x", .category = "x", .superTool = true});
    views_.addView({"x", "x"});
    tooltips_.setTooltip("x", "x");
    journal_.start();
    initializePackage();
    clear();
  }

  ModuleTest() { HostResources::getInstance().setDirectory(RESOURCE_DIR); }
  ~ModuleTest() override { clear(); }

  /// Has the module register all that it contributes, until the test ends.
  static void initializePackage() {
    HostPackageManager& manager = HostPackageManager::getInstance();
    manager.initialize(*manager.find(typeid(InInit<QvInit::pluginBrowserQvmodule>)));
  }

  RCShdPtr<PbrToolBrowsable> tool(std::string const& path) {
    return PbrToolBrowsable::create(&toolServer_, path);
  }
  RCShdPtr<PbrViewBrowsable> view(std::string const& path) {
    return PbrViewBrowsable::create(&viewServer_, path);
  }

  static inline HostToolRegistry& tools_ = HostToolRegistry::getInstance();
  static inline HostViewFactory& views_ = HostViewFactory::getInstance();
  static inline HostTtServer& tooltips_ = HostTtServer::getInstance();
  static inline HostJournal& journal_ = HostJournal::getInstance();
  PbrToolServer toolServer_;
  PbrViewServer viewServer_;

private:
  static void clear() {
    journal_.start();
    journal_.stop();
    HostPackageManager::getInstance().uninitializeAll();
    HostBrRegistry::getInstance().clear();
    HostResources::getInstance().setDirectory("");
    tools_.clear();
    views_.clear();
    tooltips_.clear();
  }
};

constexpr BrBrowsable::FindFilter AllChildren{0};
constexpr BrBrowsable::FindFilter ItemsOnly{2};
constexpr BrBrowsable::ChildSearchType AnyChildren{0};
constexpr BrBrowsable::ChildSearchType ContainerChildren{1};
constexpr BrBrowsable::ChildSearchOption NoOption{0};

/// Expects that `f` aborts there, without a message.
template <class F> void expectAbort(F f, std::string const& file, int line) {
  try {
    f();
    ADD_FAILURE() << "nothing was thrown";
  } catch (ExProgramAborted const& error) {
    EXPECT_EQ(error.getFile(), "modules\\pluginBrowser\\src\\" + file);
    EXPECT_EQ(error.getLine(), line);
    EXPECT_EQ(error.getMessage(), nullptr);
  }
}

/// All elements of a sequence.
template <class T> std::vector<T> collect(Iterator<T> elements) {
  std::vector<T> result;
  for (; !elements.atEnd(); elements.next())
    result.push_back(elements.item());
  return result;
}

/// The paths of the items of a sequence.
inline std::vector<std::string> paths(Iterator<RCShdPtr<BrBrowsable>> items) {
  std::vector<std::string> result;
  for (RCShdPtr<BrBrowsable> const& item : collect(items))
    result.push_back(item->getPath());
  return result;
}

/// A string attribute of an item.
inline std::string attribute(BrBrowsable& item, unsigned int attributeId) {
  LiString value("unwritten");
  item.get(int(attributeId), &value);
  return value;
}

/// Expects that an item asks for the thumbnail of that key, of whatever size, and has no other
/// image.
inline void expectThumbnail(BrBrowsable& item, LiString const& key) {
  HostJournal& journal = HostJournal::getInstance();
  journal.start();
  auto const image = item.getImage(int(BrBrowsable::THUMBNAIL), {1, 1});
  EXPECT_FALSE(item.getImage(int(BrBrowsable::NAME), {128, 128}));
  EXPECT_THAT(journal.getEntries(),
              testing::ElementsAre(HostJournal::Entry{"BrRegistry::getThumbnail", key, ""}));
  EXPECT_EQ(image.checkedCast<HostImage>()->getName(), key + ".tif");
  EXPECT_EQ(item.getImage(int(BrBrowsable::THUMBNAIL), {512, 512}), image);
}

/// The calls that the journal holds, as "operation(key)".
inline std::vector<std::string> calls() {
  std::vector<std::string> result;
  for (HostJournal::Entry const& entry : HostJournal::getInstance().getEntries())
    result.push_back(entry.operation + "(" + entry.key + ")");
  return result;
}

} // namespace Qv
