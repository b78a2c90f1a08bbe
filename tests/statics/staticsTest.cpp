#include "hostJournal.h"
#include "hostPackageManager.h"
#include "liString.h"
#include "osFilePath.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

// The constructors and destructors below take precedence over those of the host's libraries, so the
// module calls them. They do the same, and note each object inside the module file.

/// Replacing the library's definitions gives a class two vtables, which the address sanitizer would
/// report.
extern "C" char const* __asan_default_options() { // NOLINT(bugprone-reserved-identifier)
  return "detect_odr_violation=0";
}

namespace Qv {

namespace {

bool noting = false;

/// What was constructed and destroyed, with the number of host calls before.
std::vector<std::string>& notes() {
  static std::vector<std::string> list;
  return list;
}

void note(void const* object, std::string const& text) {
  Dl_info info;
  if (noting && dladdr(object, &info) && std::string(info.dli_fname).ends_with(".qvmodule"))
    notes().push_back(text + " after " +
                      std::to_string(HostJournal::getInstance().getEntries().size()));
}

} // namespace

InPackageInit::InPackageInit(char const* name) : name_(name) { note(this, name_); }

InPackageInit::~InPackageInit() {
  HostPackageManager::getInstance().remove(*this);
  note(this, std::string("~") + name_);
}

OsFilePath::OsFilePath(std::string const& path) : path_(path) { note(this, path_); }

OsFilePath::~OsFilePath() { note(this, "~" + path_); }

LiString::LiString(char const* text) : std::string(text) { note(this, *this); }

LiString::~LiString() { note(this, "~" + *this); }

namespace {

TEST(Statics, areConstructedInOrderAndDestroyedInReverse) {
  HostJournal::getInstance().start();
  noting = true;
  void* const module = dlopen(PLUGINBROWSERQVMODULE_FILE, RTLD_NOW | RTLD_LOCAL);
  ASSERT_TRUE(module) << dlerror();
  dlclose(module);
  noting = false;
  HostJournal::getInstance().stop();

  // The package is registered with its nine dependencies before the second static is constructed.
  EXPECT_THAT(notes(), testing::ElementsAre(
                           "pluginBrowserQvmodule after 0", "scheme.tif after 10",
                           "Tools Folder after 10", "Tool Category after 10", "Super Tool after 10",
                           "Tool after 10", "Views Folder after 10", "View after 10",
                           "bvTool.xml after 10", "~bvTool.xml after 10", "~View after 10",
                           "~Views Folder after 10", "~Tool after 10", "~Super Tool after 10",
                           "~Tool Category after 10", "~Tools Folder after 10",
                           "~scheme.tif after 10", "~pluginBrowserQvmodule after 10"));
}

} // namespace

} // namespace Qv
