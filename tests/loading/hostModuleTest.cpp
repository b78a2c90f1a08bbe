#include "hostModule.h"
#include "allocations.h"
#include "hostBrRegistry.h"
#include "hostBuildInfoRegistry.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "hostResources.h"
#include "refusal.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

namespace Qv {

static void PrintTo(HostJournal::Entry const& entry, std::ostream* os) {
  *os << entry.operation << "(" << entry.key << ", " << entry.detail << ")";
}

namespace {

using testing::HasSubstr;

/// All that was asked of the host, in order.
using Calls = std::vector<HostJournal::Entry>;

class LoadedModule : public testing::Test, protected TemporaryDirectory {
protected:
  LoadedModule() {
    HostResources::getInstance().setDirectory(RESOURCE_DIR);
    journal_.start();
  }
  ~LoadedModule() override { journal_.stop(); }

  /// The package of the module, while it is loaded.
  static InPackageInit* findPackage() {
    for (InPackageInit* const package : HostPackageManager::getInstance().getPackages())
      if (package->getName() == std::string("pluginBrowserQvmodule"))
        return package;
    return nullptr;
  }

  HostJournal& journal_ = HostJournal::getInstance();
};

std::vector<std::string> const dependencies = {
    "appUi", "ui", "datamgt", "gfx", "framework", "internalAPI", "pluginAPI", "resmgt", "base"};

/// What loading the module does to the host.
Calls loading() {
  Calls calls = {{"InPackageInit::registerPackage", "pluginBrowserQvmodule", ""}};
  for (std::string const& dependency : dependencies)
    calls.push_back({"InPackageInit::addDependency", "pluginBrowserQvmodule",
                     "Qv::InInit<QvInit::" + dependency + ">"});
  return calls;
}

/// What the module's initialisation does to the host.
Calls initialisation() {
  Calls calls = {{"InBuildInfoUtil::registerInfo", "libQvpluginBrowserQvmodule", "8.0"},
                 {"BrDndRegistry::addHandler", "Qv::PbrToolBrowsable", "Qv::PbrToolDndHandler"},
                 {"BrDndRegistry::addHandler", "Qv::PbrViewBrowsable", "Qv::PbrViewDndHandler"},
                 {"UiResTable::load", "bvTool.xml", ""},
                 {"BrRegistry::registerView", "detail", "Qv::PbrToolView"},
                 {"BrRegistry::registerServer", "tools", ""},
                 {"BrRegistry::registerServer", "views", ""}};
  std::vector<std::pair<char const*, char const*>> const icons = {
      {"Tools Folder", "folder.tif"},    {"Tool Category", "folder.tif"},   {"Tool", "tool.tif"},
      {"Super Tool", "supertool.tif"},   {"Views Folder", "folder.tif"},    {"View", "view.tif"},
      {"ToolsSchemeIcon", "scheme.tif"}, {"ViewsSchemeIcon", "scheme.tif"},
  };
  for (auto const& [key, file] : icons) {
    calls.push_back({"UiIconRegistry::loadImage", file, ""});
    calls.push_back({"BrRegistry::registerIcon", key, ""});
  }
  calls.push_back({"ActRegistry::registerAction", "Open", "0"});
  calls.push_back({"ActRegistry::registerAction", "Open in Window", "0"});
  return calls;
}

TEST_F(LoadedModule, declaresItsPackageThenRegistersAllInOrder) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  Calls expected = loading();
  for (char const* package : {"base", "resmgt", "datamgt", "internalAPI", "framework", "gfx", "ui",
                              "appUi", "pluginAPI", "pluginBrowserQvmodule"})
    expected.push_back({"InPackageInit::initialize", package, ""});
  for (HostJournal::Entry const& registration : initialisation())
    expected.push_back(registration);
  EXPECT_EQ(journal_.getEntries(), expected);
}

TEST_F(LoadedModule, withdrawsNothingAndTheHooksDoNothing) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  std::size_t const calls = journal_.getEntries().size();
  InPackageInit* const package = findPackage();
  ASSERT_TRUE(package);
  package->packageHookA();
  package->packageHookB();
  package->setPackageFlag(true);
  package->setPackageFlag(false);
  package->uninitialize();
  EXPECT_EQ(journal_.getEntries().size(), calls);
  EXPECT_EQ(HostBrRegistry::getInstance().getServers().size(), 2U);
  EXPECT_EQ(HostBuildInfoRegistry::getInstance().getInfos().size(), 1U);
}

TEST_F(LoadedModule, leavesWhenItIsUnloaded) {
  for (int round = 0; round < 2; ++round) {
    { HostModule const module(PLUGINBROWSERQVMODULE_FILE); }
    EXPECT_EQ(findPackage(), nullptr);
    EXPECT_TRUE(HostBrRegistry::getInstance().getServers().empty());
    EXPECT_FALSE(HostBrRegistry::getInstance().getIcon("Tool"));
  }
}

TEST_F(LoadedModule, losesNothingWhenARegistrationFails) {
  { HostModule const module(PLUGINBROWSERQVMODULE_FILE); }
  std::size_t const first = loading().size() + dependencies.size() + 1;
  std::size_t const count = initialisation().size();
  for (std::size_t index = 0; index < count; ++index) {
    SCOPED_TRACE(initialisation()[index].key);
    journal_.start();
    long const before = liveAllocations();
    journal_.failAt(first + index);
    EXPECT_THROW(HostModule const module(PLUGINBROWSERQVMODULE_FILE), HostError);
    EXPECT_EQ(journal_.getEntries().size(), first + index + 1)
        << "the call that failed is the last";
    EXPECT_EQ(findPackage(), nullptr);
    journal_.start();
    EXPECT_EQ(liveAllocations() - before, 0);
  }
}

TEST_F(LoadedModule, registersNullImagesToo) {
  std::filesystem::copy(std::filesystem::path(RESOURCE_DIR) / "bvTool.xml", directory_);
  HostResources::getInstance().setDirectory(directory_);
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  int icons = 0;
  for (HostJournal::Entry const& entry : journal_.getEntries())
    icons += entry.operation == "BrRegistry::registerIcon";
  EXPECT_EQ(icons, 8);
  EXPECT_EQ(journal_.getEntries().back().key, "Open in Window");
}

std::string refusal(std::string const& file) {
  return refusalOf([&] { HostModule const module(file); });
}

TEST_F(LoadedModule, staysWhenAnotherIsRefusedWithTheReason) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  std::size_t const packages = HostPackageManager::getInstance().getPackages().size();
  std::filesystem::path const text = write("text.qvmodule", "no shared library");
  std::filesystem::path const copy = directory_ / "copy.qvmodule";
  std::filesystem::copy_file(PLUGINBROWSERQVMODULE_FILE, copy);
  for (auto const& [file, reason] : std::map<std::string, char const*>{
           {"/nowhere/x.qvmodule",
            "cannot load the module \"/nowhere/x.qvmodule\": cannot open shared object file"},
           {text, ": file too short"},
           {copy, "registers a package \"pluginBrowserQvmodule\", which exists already"},
           {EMPTYMODULE_FILE, "registers no package"}}) {
    EXPECT_THAT(refusal(file), HasSubstr(reason));
    EXPECT_EQ(HostBrRegistry::getInstance().getServers().size(), 2U);
  }
  EXPECT_THAT(refusal(LOSTMODULE_FILE),
              HasSubstr("package \"lost\" in \"" LOSTMODULE_FILE "\" depends on the package "
                        "Qv::InInit<QvInit::nowhere>, which no loaded library provides"));
  EXPECT_EQ(HostPackageManager::getInstance().getPackages().size(), packages);
}

} // namespace

} // namespace Qv
