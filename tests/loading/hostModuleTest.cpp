#include "hostModule.h"
#include "hostImage.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "hostResources.h"
#include "refusal.h"
#include "registries.h"
#include "temporaryDirectory.h"

#include <boost/dll/shared_library.hpp>
#include <gmock/gmock.h>

namespace Qv {

/// What was asked of the host, in order.
using Calls = std::vector<HostJournal::Entry>;

void PrintTo(HostJournal::Entry const& entry, std::ostream* os) {
  *os << entry.operation << "(" << entry.key << ", " << entry.detail << ")";
}

namespace {

using testing::HasSubstr;

/// A host without tools, views and modules, and with a journal that is kept until the test ends.
class LoadedModule : public testing::Test, protected TemporaryDirectory {
protected:
  LoadedModule() {
    HostResources::getInstance().setDirectory(RESOURCE_DIR);
    journal_.start();
  }
  ~LoadedModule() override { journal_.stop(); }

  HostJournal& journal_ = HostJournal::getInstance();
};

std::pair<char const*, char const*> const icons[] = {
    {"Tools Folder", "folder.tif"},    {"Tool Category", "folder.tif"},  {"Tool", "tool.tif"},
    {"Super Tool", "supertool.tif"},   {"Views Folder", "folder.tif"},   {"View", "view.tif"},
    {"ToolsSchemeIcon", "scheme.tif"}, {"ViewsSchemeIcon", "scheme.tif"}};

/// What the start of the module does to the host.
Calls startUp() {
  Calls calls = {{"InPackageInit::registerPackage", "pluginBrowserQvmodule", ""}};
  for (std::string const dependency :
       {"appUi", "ui", "datamgt", "gfx", "framework", "internalAPI", "pluginAPI", "resmgt", "base"})
    calls.push_back({"InPackageInit::addDependency", "pluginBrowserQvmodule",
                     "Qv::InInit<QvInit::" + dependency + ">"});
  for (char const* package : {"base", "resmgt", "datamgt", "internalAPI", "framework", "gfx", "ui",
                              "appUi", "pluginAPI", "pluginBrowserQvmodule"})
    calls.push_back({"InPackageInit::initialize", package, ""});

  std::string const name = std::to_string(BrBrowsable::NAME);
  calls.insert(calls.end(),
               {{"InBuildInfoUtil::registerInfo", "libQvpluginBrowserQvmodule", "8.0"},
                {"BrAttribList::append", "Type", ""},
                {"BrAttribList::append", "Tool", ""},
                {"BrAttribList::singleSort", name, ""},
                {"BrAttribList::append", "Type", ""},
                {"BrAttribList::append", "View", ""},
                {"BrAttribList::singleSort", name, ""},
                {"BrDndRegistry::addHandler", "Qv::PbrToolBrowsable", "Qv::PbrToolDndHandler"},
                {"BrDndRegistry::addHandler", "Qv::PbrViewBrowsable", "Qv::PbrViewDndHandler"},
                {"UiResTable::load", "bvTool.xml", ""},
                {"BrRegistry::registerView", "detail", "Qv::PbrToolView"},
                {"BrRegistry::registerServer", "tools", ""},
                {"BrRegistry::registerServer", "views", ""}});
  for (auto const& [key, file] : icons) {
    calls.push_back({"UiIconRegistry::loadImage", file, ""});
    calls.push_back({"BrRegistry::registerIcon", key, ""});
  }
  calls.push_back({"ActRegistry::registerAction", "Open", "0"});
  calls.push_back({"ActRegistry::registerAction", "Open in Window", "0"});
  return calls;
}

/// What the registries hold then.
std::map<std::string, std::size_t> const registeredThen = {
    {"InBuildInfoUtil::registerInfo", 1}, {"BrDndRegistry::addHandler", 2},
    {"BrRegistry::registerView", 1},      {"BrRegistry::registerServer", 2},
    {"BrRegistry::registerIcon", 8},      {"ActRegistry::registerAction", 2}};

TEST_F(LoadedModule, declaresItsPackageThenRegistersAllInOrder) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  EXPECT_EQ(journal_.getEntries(), startUp());
  EXPECT_EQ(registered(), registeredThen);
  for (auto const& [key, file] : icons) {
    auto const image = HostBrRegistry::getInstance().getIcon(key);
    EXPECT_EQ(image.checkedCast<HostImage>()->getName(), file);
  }
}

TEST_F(LoadedModule, withdrawsNothingAndTheHooksDoNothing) {
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  std::size_t const calls = journal_.getEntries().size();
  auto const before = registered();
  // The host's packages came before.
  InPackageInit* const package = HostPackageManager::getInstance().getPackages().back();
  ASSERT_STREQ(package->getName(), "pluginBrowserQvmodule");
  package->packageHookA();
  package->packageHookB();
  boost::dll::shared_library const library(PLUGINBROWSERQVMODULE_FILE,
                                           boost::dll::load_mode::rtld_now);
  bool const& flag =
      library.get<bool>("_ZN2Qv6InInitIN6QvInit21pluginBrowserQvmoduleEE12packageFlag_E");
  EXPECT_FALSE(flag);
  for (bool const value : {true, false}) {
    package->setPackageFlag(value);
    EXPECT_EQ(flag, value);
  }
  package->uninitialize();
  EXPECT_EQ(journal_.getEntries().size(), calls);
  EXPECT_EQ(registered(), before);
}

TEST_F(LoadedModule, registersNullImagesToo) {
  std::filesystem::copy(std::filesystem::path(RESOURCE_DIR) / "bvTool.xml", directory_);
  HostResources::getInstance().setDirectory(directory_);
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  EXPECT_EQ(registered(), registeredThen);
  for (auto const& [key, image] : HostBrRegistry::getInstance().getIcons())
    EXPECT_FALSE(image) << key.first;
  EXPECT_THAT(journal_.getEntries(),
              testing::Contains(
                  HostJournal::Entry{"UiIconRegistry::loadImage", "view.tif", "no such image"}));
}

TEST_F(LoadedModule, staysWhenAnotherIsRefusedWithTheReason) {
  auto const before = registered();
  HostModule const module(PLUGINBROWSERQVMODULE_FILE);
  std::size_t const packages = HostPackageManager::getInstance().getPackages().size();
  std::filesystem::path const text = write("text.qvmodule", "no shared library");
  std::filesystem::path const copy = directory_ / "copy.qvmodule";
  std::filesystem::copy_file(PLUGINBROWSERQVMODULE_FILE, copy);
  auto const expectRefusal = [](std::filesystem::path const& file, char const* reason) {
    EXPECT_THAT(refusalOf([&] { HostModule const refused(file); }), HasSubstr(reason));
  };
  for (auto const& [file, reason] : std::initializer_list<std::pair<std::string, char const*>>{
           {"/nowhere/x.qvmodule",
            "cannot load the module \"/nowhere/x.qvmodule\": cannot open shared object file"},
           {text, ": file too short"},
           {copy, "registers a duplicate package \"pluginBrowserQvmodule\""},
           {EMPTYMODULE_FILE, "registers no package"}}) {
    expectRefusal(file, reason);
    EXPECT_EQ(HostBrRegistry::getInstance().getServers().size(), 2U);
  }
  // What a package fails with ends the start of all.
  for (auto const& [name, reason] :
       {std::pair("file.packages", "\" depends on the package "
                                   "Qv::InInit<QvInit::nowhere>, which no loaded "
                                   "library provides"),
        std::pair("start.initialises", "throws a non-exception: int")}) {
    std::filesystem::path const faulty = directory_ / (name + std::string(".qvmodule"));
    std::filesystem::copy_file(FAULTYMODULE_FILE, faulty);
    expectRefusal(faulty, reason);
  }
  EXPECT_EQ(registered(), before);
  EXPECT_EQ(HostPackageManager::getInstance().getPackages().size(), packages);
}

} // namespace

} // namespace Qv
