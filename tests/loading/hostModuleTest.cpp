#include "hostModule.h"
#include "allocations.h"
#include "hostBrRegistry.h"
#include "hostBuildInfoRegistry.h"
#include "hostError.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "hostResources.h"

#include <fstream>
#include <gmock/gmock.h>

namespace Qv {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;

/// A call that the journal holds.
std::string call(std::string const& operation, std::string const& key,
                 std::string const& detail = "") {
  return operation + "(" + key + (detail.empty() ? "" : ", " + detail) + ")";
}

using Calls = std::vector<std::string>;

class LoadedModule : public testing::Test {
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

  /// All calls so far.
  Calls calls() const {
    Calls result;
    for (HostJournal::Entry const& entry : journal_.getEntries())
      result.push_back(call(entry.operation, entry.key, entry.detail));
    return result;
  }

  HostJournal& journal_ = HostJournal::getInstance();
};

std::vector<std::string> const dependencies = {
    "appUi", "ui", "datamgt", "gfx", "framework", "internalAPI", "pluginAPI", "resmgt", "base"};

/// What loading the module does to the host.
Calls loading() {
  Calls calls = {call("InPackageInit::registerPackage", "pluginBrowserQvmodule")};
  for (std::string const& dependency : dependencies)
    calls.push_back(call("InPackageInit::addDependency", "pluginBrowserQvmodule",
                         "Qv::InInit<QvInit::" + dependency + ">"));
  return calls;
}

/// What the module's initialisation does to the host.
Calls initialisation() {
  Calls calls = {call("InBuildInfoUtil::registerInfo", "libQvpluginBrowserQvmodule", "8.0"),
                 call("BrDndRegistry::addHandler", "Qv::PbrToolBrowsable", "Qv::PbrToolDndHandler"),
                 call("BrDndRegistry::addHandler", "Qv::PbrViewBrowsable", "Qv::PbrViewDndHandler"),
                 call("UiResTable::load", "bvTool.xml"),
                 call("BrRegistry::registerView", "detail", "Qv::PbrToolView"),
                 call("BrRegistry::registerServer", "tools"),
                 call("BrRegistry::registerServer", "views")};
  std::vector<std::pair<char const*, char const*>> const icons = {
      {"Tools Folder", "folder.tif"},    {"Tool Category", "folder.tif"},   {"Tool", "tool.tif"},
      {"Super Tool", "supertool.tif"},   {"Views Folder", "folder.tif"},    {"View", "view.tif"},
      {"ToolsSchemeIcon", "scheme.tif"}, {"ViewsSchemeIcon", "scheme.tif"},
  };
  for (auto const& [key, file] : icons) {
    calls.push_back(call("UiIconRegistry::loadImage", file));
    calls.push_back(call("BrRegistry::registerIcon", key));
  }
  calls.push_back(call("ActRegistry::registerAction", "Open", "0"));
  calls.push_back(call("ActRegistry::registerAction", "Open in Window", "0"));
  return calls;
}

TEST_F(LoadedModule, declaresItsPackageThenRegistersAllInOrder) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  Calls expected = loading();
  for (char const* package : {"base", "resmgt", "datamgt", "internalAPI", "framework", "gfx", "ui",
                              "appUi", "pluginAPI", "pluginBrowserQvmodule"})
    expected.push_back(call("InPackageInit::initialize", package));
  for (std::string const& registration : initialisation())
    expected.push_back(registration);
  EXPECT_THAT(calls(), ElementsAreArray(expected));

  InPackageInit* const package = findPackage();
  ASSERT_TRUE(package);
  std::vector<std::string> names;
  for (std::type_info const* const type : package->getDependencies())
    names.push_back(HostPackageManager::getInstance().find(*type)->getName());
  EXPECT_EQ(names, dependencies);
}

TEST_F(LoadedModule, givesItsBuildInformation) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  ASSERT_EQ(HostBuildInfoRegistry::getInstance().getInfos().size(), 1U);
  InBuildInfo const& info = *HostBuildInfoRegistry::getInstance().getInfos()[0];
  EXPECT_THAT(
      (std::vector<std::string>{info.getProductName(), info.getLibraryName(), info.getReleaseName(),
                                info.getVersionString(), info.getStageName(), info.getBuildNumber(),
                                info.getBuildDate(), info.getBuildFlavor()}),
      ElementsAre("Halvard Ostrel Library", "libQvpluginBrowserQvmodule", "2013", "8.0", "", "2600",
                  "Jun 12 2012", "opt.x86_64.intel"));
  EXPECT_EQ(info.getMajorVersion(), 8);
  EXPECT_EQ(info.getMinorVersion(), 0);
  EXPECT_EQ(info.getStageCode(), 42);
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
    SCOPED_TRACE(initialisation()[index]);
    journal_.start();
    long const before = liveAllocations();
    journal_.failAt(first + index);
    EXPECT_THROW(HostModule const module(PLUGINBROWSERQVMODULE_FILE), HostError);
    EXPECT_EQ(calls().size(), first + index + 1) << "the call that failed is the last";
    EXPECT_EQ(findPackage(), nullptr);
    journal_.start();
    EXPECT_EQ(liveAllocations() - before, 0);
  }
}

TEST_F(LoadedModule, registersNullImagesToo) {
  std::filesystem::path const directory = testing::TempDir() + "noIcons";
  std::filesystem::create_directory(directory);
  std::filesystem::copy(std::filesystem::path(RESOURCE_DIR) / "bvTool.xml", directory,
                        std::filesystem::copy_options::overwrite_existing);
  HostResources::getInstance().setDirectory(directory);
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  int icons = 0;
  for (HostJournal::Entry const& entry : journal_.getEntries())
    icons += entry.operation == "BrRegistry::registerIcon";
  EXPECT_EQ(icons, 8);
  EXPECT_EQ(journal_.getEntries().back().key, "Open in Window");
}

TEST_F(LoadedModule, staysWhenAnotherIsRefused) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  std::string const copy = testing::TempDir() + "copy.qvmodule";
  std::filesystem::copy(PLUGINBROWSERQVMODULE_FILE, copy,
                        std::filesystem::copy_options::overwrite_existing);
  for (std::string const file : {copy.c_str(), EMPTYMODULE_FILE})
    EXPECT_THROW(HostModule const other(file), HostError);
  EXPECT_EQ(HostBrRegistry::getInstance().getServers().size(), 2U);
}

TEST_F(LoadedModule, isRefusedWithTheReason) {
  std::string const text = testing::TempDir() + "text.qvmodule";
  std::ofstream(text) << "no shared library";
  struct Case {
    std::string file;
    char const* reason;
  };
  for (Case const& item : std::vector<Case>{
           {"/nowhere/x.qvmodule",
            "cannot load the module \"/nowhere/x.qvmodule\": there is no such file"},
           {text, ": file too short"},
           {EMPTYMODULE_FILE, "registers no package"},
           {LOSTMODULE_FILE, "package \"lost\" depends on the package "
                             "Qv::InInit<QvInit::nowhere>, which no loaded library provides"}}) {
    std::size_t const packages = HostPackageManager::getInstance().getPackages().size();
    try {
      HostModule const module(item.file);
      ADD_FAILURE() << item.file;
    } catch (HostError const& error) {
      EXPECT_THAT(error.what(), HasSubstr(item.reason));
    }
    EXPECT_EQ(HostPackageManager::getInstance().getPackages().size(), packages);
  }
}

} // namespace

} // namespace Qv
