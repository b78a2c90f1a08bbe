#pragma once

#include "pbrInstances.h"

#include "assertions.h"
#include "hostBrRegistry.h"
#include "hostImage.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "noLeaks.h"
#include "pbrToolBrowsable.h"
#include "pbrToolServer.h"
#include "pbrViewBrowsable.h"
#include "pbrViewServer.h"
#include "pluginBrowserQvmoduleInit.h"
#include "thrown.h"

#include <gmock/gmock.h>

namespace Qv {

/// A host without tools, views and tooltips, with no package initialised and no journal kept; the
/// test may lose no allocation. All of these are reset after each test. Before the first one, each
/// is filled once, since what is cleared keeps the storage of its elements.
class ModuleTest : public NoLeaks {
protected:
  static void SetUpTestSuite() {
    HostResources::getInstance().setDirectory(RESOURCE_DIR);
    tools_.addCategory("x");
    tools_.addTool({.name = "x", .category = "x", .superTool = true});
    views_.addView({"x", "x"});
    tooltips_.addTooltip("x", "x");
    journal_.start();
    initializePackage();
    reset();
  }

  ~ModuleTest() override { reset(); }

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
  static void reset() {
    journal_.start();
    journal_.stop();
    HostPackageManager::getInstance().uninitializeAll();
    HostBrRegistry::getInstance().clear();
    tools_.clear();
    views_.clear();
    tooltips_.clear();
  }
};

constexpr BrBrowsable::FindFilter AllChildren{0};
constexpr BrBrowsable::FindFilter ItemsOnly{2};

/// All elements of a sequence.
template <class T> std::vector<T> collect(Iterator<T> elements) {
  std::vector<T> result;
  for (; !elements.atEnd(); elements.next())
    result.push_back(elements.item());
  return result;
}

using Texts = std::vector<std::string>;

/// The paths of the items of a sequence.
inline Texts paths(Iterator<RCShdPtr<BrBrowsable>> items) {
  Texts result;
  for (RCShdPtr<BrBrowsable> const& item : collect(items))
    result.push_back(item->getPath());
  return result;
}

/// The paths of the children that an item lists first.
inline Texts childPaths(BrBrowsable& item, int filter) {
  RCShdPtr<BrChildrenQuery> const query = item.getChildren(BrBrowsable::FindFilter(filter));
  EXPECT_EQ(query->getParent(), &item);
  return paths(query->getNextChildSequence());
}

/// Expects what an item answers when it is asked for children, and for children that are
/// containers, with whatever option.
inline void expectChildren(BrBrowsable const& item, bool any, bool containers) {
  for (int const option : {0, 1, 2})
    for (int const type : {0, 1, 2})
      EXPECT_EQ(item.hasChildren(BrBrowsable::ChildSearchType(type),
                                 BrBrowsable::ChildSearchOption(option)),
                type == 1 ? containers : any)
          << "type " << type << ", option " << option;
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
inline Texts calls() {
  Texts result;
  for (HostJournal::Entry const& entry : HostJournal::getInstance().getEntries())
    result.push_back(entry.operation + "(" + entry.key + ")");
  return result;
}

} // namespace Qv
